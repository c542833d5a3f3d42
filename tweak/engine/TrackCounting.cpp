// The engine's song-count mode, and the end that waits for a track: both watch for track changes.
#include "platform/MediaRemote.h"
#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/indicators/Dozewell2TimeLeftIndicatorsManager.h"

void Dozewell2Manager::startTimerWithNbTracks(long count) {
  nbSongsModeIsRunning = true;
  nbSongsToPlayBeforeStop = count;
  // The remembered title stays: changes are counted away from the track that plays now.
  nbSongsPlayed = 0;
  NSNotificationCenter::defaultCenter().postNotificationName("DozewellDidStartNotification"_ns,
                                                             nullptr);
  Dozewell2TimeLeftIndicatorsManager::sharedInstance().updateCounterWithNbTracks();
}

// The title alone decides: the notification also tells of pauses, seeks and artwork.
void Dozewell2Manager::mediaDidChange(objc::Object) {
  MediaRemote::getNowPlayingInfo([](NSDictionary info) {
    const auto title = objc::as<NSString>(info.objectForKey(MediaRemote::infoTitleKey()));
    auto& engine = sharedInstance();
    if (!title || engine.lastSongTitleName->isEqualToString(title)) return;
    engine.lastSongTitleName = objc::retain(title);
    engine.handleTrackChangedIfNeeded();
  });
}

void Dozewell2Manager::handleTrackChangedIfNeeded() {
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

long Dozewell2Manager::getTimerRemainingTracks() const {
  // Wraps like the phone's arithmetic: an absurd count may be stored.
  return long(static_cast<unsigned long>(nbSongsToPlayBeforeStop) -
              static_cast<unsigned long>(nbSongsPlayed));
}
