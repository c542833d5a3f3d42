// The engine's song-count mode, and the end that waits for a track: both watch for track changes.
#include "platform/MediaRemote.h"
#include "tweak/engine/Dozewell2ManagerImplementation.h"
#include "tweak/indicators/Dozewell2TimeLeftIndicatorsManager.h"
#include "tweak/support/Arithmetic.h"

using Engine = Dozewell2ManagerImplementation;

void Engine::startTimerWithNbTracks(long count) {
  nbSongsModeIsRunning = true;
  nbSongsToPlayBeforeStop = count;
  // The remembered title stays: changes are counted away from the track that plays now.
  nbSongsPlayed = 0;
  NSNotificationCenter::defaultCenter().postNotificationName("DozewellDidStartNotification"_ns,
                                                             nullptr);
  Dozewell2TimeLeftIndicatorsManager::sharedInstance().updateCounterWithNbTracks();
}

// The title alone decides: the notification also tells of pauses, seeks and artwork. So a track
// that repeats is not counted, nor a second one of the same title (songs-equal-titles,
// songs-repeat-one).
void Engine::mediaDidChange(objc::Object) {
  MediaRemote::getNowPlayingInfo([](NSDictionary info) {
    const auto reported = info.objectForKey(MediaRemote::infoTitleKey());
    // What an app reports is its own affair. What is no string is no title, and neither is nothing.
    if (!isKindOf<NSString>(reported)) return;
    const auto title = objc::as<NSString>(reported);
    auto& engine = sharedInstance();
    if (engine.lastSongTitleName->isEqualToString(title)) return;
    engine.lastSongTitleName = objc::retain(title);
    engine.handleTrackChangedIfNeeded();
  });
}

void Engine::handleTrackChangedIfNeeded() {
  if (nbSongsModeIsRunning) {
    nbSongsPlayed += 1;
    // Before the end is looked for: a restart of the host resumes with what is left.
    persistTimerWithNbTracks(getTimerRemainingTracks());
    Dozewell2TimeLeftIndicatorsManager::sharedInstance().updateCounterWithNbTracks();
    if (nbSongsPlayed >= nbSongsToPlayBeforeStop) timerOrNbTracksDidEnd();
  }
  // Independent of the count: both modes may be flagged at once.
  if (shouldPauseMusicAtTheEndOfThisTrack) timerOrNbTracksDidEnd();
}

long Engine::getTimerRemainingTracks() const {
  // An absurd count may be stored.
  return wrappingDifference(nbSongsToPlayBeforeStop, nbSongsPlayed);
}
