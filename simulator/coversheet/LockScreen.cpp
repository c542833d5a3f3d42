#include "simulator/coversheet/LockScreen.h"

#include <cmath>

#include "objc/Message.h"
#include "simulator/foundation/Values.h"
#include "simulator/phone/Phone.h"

namespace sim {
namespace {

double secondsToMidnight(double wall) {
  constexpr double day = 86400;
  return day - (wall - std::floor(wall / day) * day);
}

}  // namespace

LockScreen& LockScreen::current() {
  static LockScreen screen;
  return screen;
}

void LockScreen::lock() {
  locked_ = true;
  if (!hasParts_) makeParts();
  drawDate();
}

void LockScreen::makeParts() {
  hasParts_ = true;
  timerController_ = objc::send<objc::Object, "initWithNibName:bundle:">(
      objc_alloc(objc_getClass("CSTimerViewController")), nullptr, nullptr);
  dateView_ = objc::Object(objc_alloc_init(objc_getClass("SBFLockScreenDateSubtitleDateView")));
  redrawAtMidnight();
}

void LockScreen::drawDate() {
  objc::send<void, "setDate:">(dateView_, date(Phone::current().clock.wall()));
}

void LockScreen::redrawAtMidnight() {
  Phone& phone = Phone::current();
  const double distance = secondsToMidnight(phone.clock.wall());
  phone.queue.add(phone.clock.uptime() + nanoseconds(distance), [this] {
    drawDate();
    redrawAtMidnight();
  });
}

std::optional<std::string> LockScreen::dateText() const {
  const auto shown = objc::send<objc::Object, "string">(dateView_);
  return shown ? std::optional(text(shown)) : std::nullopt;
}

std::optional<double> LockScreen::countdown() const {
  const auto end = objc::send<objc::Object, "endDate">(timerController_);
  if (!end) return std::nullopt;
  return objc::send<double, "timeIntervalSinceNow">(end);
}

}  // namespace sim
