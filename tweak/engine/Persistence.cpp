// What the engine keeps over a restart of the host, in the host's own user defaults: the moment
// a duration is due, or the tracks that are left. Writing one never removes the other.
#include "tweak/engine/Dozewell2Manager.h"

namespace {

NSString dueDateKey() {
  return "com.corvane.dozewell2.persistedTimerDate"_ns;
}
NSString tracksLeftKey() {
  return "com.corvane.dozewell2.persistedNbTracksLeft"_ns;
}

void persist(objc::Object value, NSString key) {
  const auto defaults = NSUserDefaults::standardUserDefaults();
  defaults.setObject(value, key);
  defaults.synchronize();
}

// The file may hold anything by the time it is read; a value of another type is nothing to
// restore.
double secondsUntil(objc::Object date) {
  if (!objc::respondsTo<"timeIntervalSinceNow">(date)) return 0;
  return objc::as<NSDate>(date).timeIntervalSinceNow();
}

// Out of range the phone's processor saturates; C++ leaves it open, so it is written out.
long truncated(double seconds) {
  constexpr double limit = 9223372036854775808.0;
  return seconds < limit ? long(seconds) : 9223372036854775807;
}

long integer(objc::Object number) {
  if (!objc::respondsTo<"integerValue">(number)) return 0;
  return objc::as<NSNumber>(number).integerValue();
}

}  // namespace

void Dozewell2Manager::persistTimerWithTimeInterval(long seconds) {
  persist(NSDate::dateWithTimeIntervalSinceNow(double(seconds)), dueDateKey());
}

void Dozewell2Manager::persistTimerWithNbTracks(long count) {
  persist(NSNumber::numberWithInteger(count), tracksLeftKey());
}

void Dozewell2Manager::cancelAllPersistedTimers() {
  const auto defaults = NSUserDefaults::standardUserDefaults();
  defaults.removeObject(dueDateKey());
  defaults.removeObject(tracksLeftKey());
  defaults.synchronize();
}

// Starts the timer only: no start actions, nothing written again, no last chosen value.
void Dozewell2Manager::restoreDozewellIfNeeded() {
  const auto defaults = NSUserDefaults::standardUserDefaults();
  if (const auto due = defaults.objectForKey(dueDateKey())) {
    const double seconds = secondsUntil(due);
    if (seconds > 0) startTimerWithTimeInterval(truncated(seconds));
    // A date that has passed stays, and hides a stored count, until the next reset.
    return;
  }
  const long left = integer(defaults.objectForKey(tracksLeftKey()));
  if (left >= 1) startTimerWithNbTracks(left);
}
