// What the engine keeps over a restart of the host, in the host's own user defaults: the moment
// a duration is due, or the tracks that are left. Writing one never removes the other.
#include "tweak/engine/Dozewell2ManagerImplementation.h"
#include "tweak/support/Arithmetic.h"

using Engine = Dozewell2ManagerImplementation;

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

}  // namespace

void Engine::persistTimerWithTimeInterval(long seconds) {
  persist(NSDate::dateWithTimeIntervalSinceNow(double(seconds)), dueDateKey());
}

void Engine::persistTimerWithNbTracks(long count) {
  persist(NSNumber::numberWithInteger(count), tracksLeftKey());
}

void Engine::cancelAllPersistedTimers() {
  const auto defaults = NSUserDefaults::standardUserDefaults();
  defaults.removeObject(dueDateKey());
  defaults.removeObject(tracksLeftKey());
  defaults.synchronize();
}

// Starts the timer only: no start actions, nothing written again, no last chosen value. The file
// may hold anything by the time it is read; a value of another type is nothing to restore.
void Engine::restoreDozewellIfNeeded() {
  const auto defaults = NSUserDefaults::standardUserDefaults();
  if (const auto due = defaults.objectForKey(dueDateKey())) {
    const double seconds = NSDate::timeIntervalSinceNowOf(due);
    // Cut, not rounded: with half a second left the timer fires at once.
    if (seconds > 0) startTimerWithTimeInterval(saturatingCast<long>(seconds));
    // A date that has passed stays, and hides a stored count, until the next reset.
    return;
  }
  const long left = NSNumber::integerValueOf(defaults.objectForKey(tracksLeftKey()));
  if (left >= 1) startTimerWithNbTracks(left);
}
