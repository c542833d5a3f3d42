#include "tweak/indicators/SpokenTimeLeft.h"

#include "tweak/indicators/SleepTimer.h"
#include "tweak/indicators/TimeFormat.h"
#include "tweak/support/SpokenText.h"

namespace {

// Full hours are said without minutes.
NSString spokenDuration(long minutes) {
  const long hours = minutes / 60;
  if (hours == 0) return SpokenText::counted("MINUTES", minutes);
  const auto spokenHours = SpokenText::counted("HOURS", hours);
  if (minutes % 60 == 0) return spokenHours;
  return SpokenText::localized("HOURS_AND_MINUTES")
      .stringByReplacingOccurrencesOfString("%1$@"_ns, spokenHours)
      .stringByReplacingOccurrencesOfString("%2$@"_ns,
                                            SpokenText::counted("MINUTES", minutes % 60));
}

// In place of minutes, of which the last has none left.
enum : long { noDuration = 0, untilTheSongEnds = -1, lessThanAMinute = -2 };

NSString spokenMinutes(long minutes) {
  if (minutes == untilTheSongEnds) return SpokenText::localized("UNTIL_SONG_ENDS");
  if (minutes == lessThanAMinute) return SpokenText::localized("LESS_THAN_A_MINUTE");
  return SpokenText::localized("TIME_LEFT")
      .stringByReplacingOccurrencesOfString("%@"_ns, spokenDuration(minutes));
}

}  // namespace

long minutesToTell() {
  const auto timer = SleepTimer::sharedInstance();
  if (!timer.timerModeIsRunning()) return noDuration;
  if (timer.shouldPauseMusicAtTheEndOfThisTrack()) return untilTheSongEnds;
  const int seconds = wholeSeconds(timer.getTimerRemainingTime());
  return seconds < 60 ? long(lessThanAMinute) : seconds / 60;
}

NSString spokenTimeLeft() {
  if (const long minutes = minutesToTell(); minutes != noDuration) return spokenMinutes(minutes);
  const auto timer = SleepTimer::sharedInstance();
  if (!timer.nbSongsModeIsRunning()) return nullptr;
  return SpokenText::counted("SONGS_LEFT", timer.getTimerRemainingTracks());
}
