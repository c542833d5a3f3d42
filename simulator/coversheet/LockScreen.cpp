#include "simulator/coversheet/LockScreen.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "objc/Message.h"
#include "simulator/coversheet/CSCoverSheetViewController.h"
#include "simulator/coversheet/CSProminentSubtitleDateView.h"
#include "simulator/coversheet/CSTimerViewController.h"
#include "simulator/foundation/Deadline.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/springboard/StatusBar.h"
#include "simulator/uikit/application/PreRender.h"

namespace sim {
namespace {

// iOS 16 draws the clock and what stands below it anew.
bool hasProminentDate() {
  return CSProminentSubtitleDateView::cls() != nullptr;
}

double midnightAfter(double moment) {
  constexpr double day = 86400;
  return (std::floor(moment / day) + 1) * day;
}

}  // namespace

LockScreen& LockScreen::current() {
  return Phone::current().state<LockScreen>();
}

void LockScreen::lock() {
  locked_ = true;
  for (const auto& handler : lockHandlers_) handler();
  if (!std::exchange(hasDateView_, true))
    dateView_ = objc::Object(objc_alloc_init(objc_getClass(
        hasProminentDate() ? "CSProminentSubtitleDateView" : "SBFLockScreenDateSubtitleDateView")));
  const double now = Phone::current().clock.wall();
  drawDate(now);
  redrawAt(midnightAfter(now));
  showCoverSheet();
}

void LockScreen::unlock() {
  locked_ = false;
  setStatusBarShowsTime(true);
  const auto window = objc::adopt(std::exchange(window_, nullptr));
  objc::send<void, "setRootViewController:">(window.get(), nullptr);
  objc::send<void, "setHidden:">(window.get(), true);
}

void LockScreen::showCoverSheet() {
  constexpr double windowLevel = 1050;  // above the home screen, below Control Center
  if (window_ || CSCoverSheetViewController::cls() == nullptr) return;
  const auto sheet = CSCoverSheetViewController::make();
  CSCoverSheetViewController::of(sheet.get()).setDateView(dateView_);
  window_ = objc::send<objc::Object, "new">(objc_getClass("UIWindow"));
  objc::send<void, "setWindowLevel:">(window_, windowLevel);
  objc::send<void, "setRootViewController:">(window_, sheet.get());
  objc::send<void, "setHidden:">(window_, false);
  objc::send<void, "setDelegate:">(timerController_, sheet.get());
  setStatusBarShowsTime(false);
  followCountdown();
}

// As long as the process lives: there is a cover sheet at times.
void LockScreen::followCountdown() {
  if (std::exchange(followsCountdown_, true)) return;
  addPreRenderHook([this] {
    if (const objc::Object sheet = coverSheet())
      CSCoverSheetViewController::of(sheet).showCountdown(countdown());
  });
}

objc::Object LockScreen::coverSheet() const {
  return objc::send<objc::Object, "rootViewController">(window_);
}

void LockScreen::makeTimerController() {
  timerController_ = objc::send<objc::Object, "initWithNibName:bundle:">(
      objc_alloc(objc_getClass("CSTimerViewController")), nullptr, nullptr);
  objc::send<void, "setEnabled:">(timerController_, true);
}

void LockScreen::drawDate(double moment) {
  if (hasProminentDate())
    CSProminentSubtitleDateView::showDate(dateView_, moment);
  else
    objc::send<void, "setDate:">(dateView_, date(moment));
}

void LockScreen::redrawAt(double midnight) {
  Phone& phone = Phone::current();
  phone.queue.cancel(nextDrawing_);
  nextDrawing_ = phone.queue.add(uptimeAt(phone.clock, midnight), [this, midnight, &phone] {
    double now = phone.clock.wall();
    // Set back meanwhile, the wall clock has midnight before it once more. Otherwise it shows at
    // least midnight, but for what its resolution loses.
    const bool isEarly = uptimeAt(phone.clock, midnight) > phone.clock.uptime();
    if (!isEarly) drawDate(now = std::max(now, midnight));
    redrawAt(midnightAfter(now));
  });
}

std::optional<std::string> LockScreen::dateText() const {
  if (!dateView_) return std::nullopt;
  const auto shown = hasProminentDate() ? CSProminentSubtitleDateView::shownText(dateView_)
                                        : objc::send<objc::Object, "string">(dateView_);
  return shown ? std::optional(text(shown)) : std::nullopt;
}

std::optional<double> LockScreen::countdown() const {
  const auto* controller = stateOf<CSTimerViewController>(timerController_);
  if (controller == nullptr || !controller->counts()) return std::nullopt;
  const double left = objc::send<double, "timeIntervalSinceNow">(controller->endDate.get());
  return left > 0 ? std::optional(left) : std::nullopt;
}

}  // namespace sim
