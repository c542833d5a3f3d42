// The engine's song-count mode. Tracks are not counted yet.
#include "tweak/engine/Dozewell2Manager.h"

void Dozewell2Manager::startTimerWithNbTracks(long) {}

long Dozewell2Manager::getTimerRemainingTracks() const {
  return nbSongsToPlayBeforeStop - nbSongsPlayed;
}

void Dozewell2Manager::mediaDidChange(objc::Object) {}

void Dozewell2Manager::handleTrackChangedIfNeeded() {}
