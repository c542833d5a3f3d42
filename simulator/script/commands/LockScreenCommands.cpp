// The script commands of the person who locks the phone and looks at it.
#include <cmath>
#include <optional>
#include <string>

#include "objc/Message.h"
#include "simulator/coversheet/ClockTimer.h"
#include "simulator/coversheet/LockScreen.h"
#include "simulator/machine/Phone.h"
#include "simulator/script/Command.h"
#include "simulator/script/values/PhoneVariables.h"

namespace sim {
namespace {

void lock(Arguments& words) {
  words.finish();
  Phone::current().journal.record("user lock");
  LockScreen::current().lock();
}

void unlock(Arguments& words) {
  words.finish();
  Phone::current().journal.record("user unlock");
  LockScreen::current().unlock();
}

void clockTimer(Arguments& words) {
  if (words.takeKeyword("stop")) {
    words.finish();
    Phone::current().journal.record("user clock-timer stop");
    ClockTimer::current().stop();
    return;
  }
  if (!words.takeKeyword("start")) words.failHere("expected start or stop");
  const double duration = words.number("seconds");
  if (!(duration > 0)) words.failHere("a timer lasts longer than 0 seconds");
  words.finish();
  Phone::current().journal.record("user clock-timer start " + notation(duration));
  ClockTimer::current().start(duration);
}

[[noreturn]] void refuseLockScreen(const std::string& what, const std::string& expected,
                                   const std::string& found) {
  throw ScriptError(0, "the lock screen's " + what + ": expected " + expected + ", found " + found);
}

void expectDate(Arguments& words) {
  std::optional<std::string> expected;
  if (!words.takeKeyword("none")) expected = words.text("a text, or none");
  words.finish();
  const auto found = LockScreen::current().dateText();
  const auto shown = [](const auto& text) { return text ? sim::quoted(*text) : "none"; };
  if (found != expected) refuseLockScreen("date", shown(expected), shown(found));
}

bool areNear(std::optional<double> expected, std::optional<double> found, double tolerance) {
  if (!expected || !found) return !expected && !found;
  return std::abs(*found - *expected) <= tolerance;
}

void expectTimer(Arguments& words) {
  std::optional<double> expected;
  if (!words.takeKeyword("none")) expected = words.number("seconds, or none");
  // What moments of the wall clock resolve, unless the script says otherwise.
  double tolerance = 1e-6;
  if (words.takeKeyword("within")) tolerance = words.number("a tolerance");
  words.finish();
  const auto found = LockScreen::current().countdown();
  const auto shown = [](const auto& left) { return left ? notation(*left) : "none"; };
  if (!areNear(expected, found, tolerance))
    refuseLockScreen("countdown", shown(expected), shown(found));
}

objc::Object lockScreenPlayer() {
  return objc::send<objc::Object, "nowPlayingViewController">(
      objc::send<objc::Object, "mediaControlsViewController">(LockScreen::current().coverSheet()));
}

objc::Object lockScreenHeader() {
  return objc::send<objc::Object, "headerView">(
      objc::send<objc::Object, "view">(lockScreenPlayer()));
}

}  // namespace

void addLockScreenCommands(CommandTable& table) {
  ClockTimer::current();  // exists before a restart's saved state is given back to it
  table.add(
      {"clock-timer", Stage::any, "clock-timer start SECONDS|stop", "clock-timer start 300",
       "The user starts or stops the timer of the Clock, whose countdown the lock screen shows. "
       "The lock screen hears of each change, and of what runs when the host launches, a moment "
       "later.",
       clockTimer});
  table.add({"lock", Stage::running, "lock", "lock",
             "The user locks the phone; the lock screen draws its date. A new host has no lock "
             "screen before this. While it shows a player, $lockScreenNowPlaying and "
             "$lockScreenHeader are the player's controller and its header.",
             lock});
  addPhoneVariable("lockScreenNowPlaying", lockScreenPlayer);
  addPhoneVariable("lockScreenHeader", lockScreenHeader);
  table.add({"unlock", Stage::running, "unlock", "unlock", "The user unlocks the phone.", unlock});
  table.add({"expect-lock-screen-date", Stage::running, "expect-lock-screen-date TEXT|none",
             "expect-lock-screen-date \"Friday, January 1\"",
             "What the date line under the lock screen's clock says. A countdown takes its place.",
             expectDate});
  table.add({"expect-lock-screen-timer", Stage::running,
             "expect-lock-screen-timer SECONDS|none [within TOLERANCE]",
             "expect-lock-screen-timer 60 within 0.5",
             "The seconds that the lock screen's countdown has left.", expectTimer});
}

}  // namespace sim
