#include "tweak/indicators/SpokenTimeLeft.h"

#include "tweak/indicators/SleepTimer.h"
#include "tweak/indicators/TimeFormat.h"
#include "tweak/support/SpokenText.h"

namespace {

// Full hours are said without minutes.
NSString spokenDuration(int minutes) {
  const int hours = minutes / 60;
  if (hours == 0) return SpokenText::counted("MINUTES", minutes);
  const auto spokenHours = SpokenText::counted("HOURS", hours);
  if (minutes % 60 == 0) return spokenHours;
  return SpokenText::localized("HOURS_AND_MINUTES")
      .stringByReplacingOccurrencesOfString("%1$@"_ns, spokenHours)
      .stringByReplacingOccurrencesOfString("%2$@"_ns,
                                            SpokenText::counted("MINUTES", minutes % 60));
}

NSString spokenSeconds(int seconds) {
  if (seconds < 60) return SpokenText::localized("LESS_THAN_A_MINUTE");
  return SpokenText::localized("TIME_LEFT")
      .stringByReplacingOccurrencesOfString("%@"_ns, spokenDuration(seconds / 60));
}

}  // namespace

NSString spokenTimeLeft() {
  const auto timer = SleepTimer::sharedInstance();
  if (!timer.timerModeIsRunning() && !timer.nbSongsModeIsRunning()) return nullptr;
  if (timer.shouldPauseMusicAtTheEndOfThisTrack()) return SpokenText::localized("UNTIL_SONG_ENDS");
  if (timer.timerModeIsRunning()) return spokenSeconds(wholeSeconds(timer.getTimerRemainingTime()));
  return SpokenText::counted("SONGS_LEFT", timer.getTimerRemainingTracks());
}
