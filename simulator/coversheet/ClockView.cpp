#include "simulator/coversheet/ClockView.h"

#include <algorithm>

#include "simulator/coversheet/ClockTimer.h"
#include "simulator/coversheet/CountdownText.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/LocaleText.h"
#include "simulator/foundation/Values.h"
#include "simulator/springboard/AppWindow.h"
#include "simulator/springboard/HomeIcons.h"
#include "simulator/springboard/SystemNames.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/application/PreRender.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

constexpr long middleOfLine = 1;
constexpr CGSize pill = {150, 48};  // points

struct ClockApplication {
  AppWindow window;
};

AppWindow& clockWindow() {
  return Phone::current().state<ClockApplication>().window;
}

std::string minutesText(int minutes) {
  const std::string& locale = Phone::current().setup.locale;
  return numberText(std::to_string(minutes), locale) + ' ' +
         unitText("minute", minutes, UnitWidth::abbreviated, locale);
}

Strong<Object> addPill(Object view, const std::string& title, Object color, SEL action) {
  Strong<Object> button =
      objc::retain(objc::send<Object, "buttonWithType:">(objc_getClass("UIButton"), 0L));
  objc::send<void, "setTitle:forState:">(button.get(), string(title), 0UL);
  fill(button, color, pill.height / 2);
  objc::send<void, "addSubview:">(view, button.get());
  addTapTarget(button, view, action);
  return button;
}

}  // namespace

Object ClockView::initWithFrame(CGRect frame) {
  const Object made = super<Object, "initWithFrame:">(frame);
  if (!made) return nullptr;
  fill(made, blackColor(1));
  title = addLabel(made, {.points = 28, .isBold = true, .alignment = middleOfLine});
  setText(title, string(systemName("Timer")));
  left = addLabel(made, {.points = 72, .alignment = middleOfLine});
  for (const int minutes : {1, 5, 15, 60})
    starts.emplace_back(
        addPill(made, minutesText(minutes), rgbColor(0.1, 0.35, 0.18), objc::selector<"_start:">()),
        minutes);
  cancel = addPill(made, systemName("Cancel"), whiteColor(0.2), objc::selector<"_stop">());
  showTimeLeft();
  return made;
}

void ClockView::layoutSubviews() {
  super<void, "layoutSubviews">();
  constexpr double gap = 16;  // points
  const CGSize size = sizeOf(Object(self()));
  const double top = std::min(110.0, size.height / 8);
  setFrame(title, {{0, top - 40}, {size.width, 36}});
  setFrame(left, {{0, top + 10}, {size.width, 90}});
  const double middle = size.width / 2;
  double y = top + 120;
  for (std::size_t i = 0; i < starts.size(); ++i) {
    const double x = i % 2 == 0 ? middle - gap / 2 - pill.width : middle + gap / 2;
    setFrame(starts[i].first, {{x, y}, pill});
    if (i % 2 == 1) y += pill.height + gap;
  }
  setFrame(cancel, {{middle - pill.width / 2, y}, pill});
}

void ClockView::start(Object button) {
  for (const auto& [each, minutes] : starts) {
    if (each.get() != button) continue;
    const double seconds = minutes * 60;
    Phone::current().journal.record("Clock timer starts " + notation(seconds));
    ClockTimer::current().start(seconds);
  }
  showTimeLeft();
}

void ClockView::stop() {
  if (!ClockTimer::current().endDate()) return;
  Phone::current().journal.record("Clock timer stops");
  ClockTimer::current().stop();
  showTimeLeft();
}

void ClockView::showTimeLeft() {
  const auto end = ClockTimer::current().endDate();
  const double seconds = end ? std::max(*end - Phone::current().clock.wall(), 0.0) : 0;
  setText(left, string(countdownText(seconds)));
  setAlpha(cancel, end ? 1 : 0.4);
}

void ClockView::registerClass() {
  StandIn<ClockView>("MobileTimer", "_ClockTimerView", "UIView")
      .method<"initWithFrame:", &ClockView::initWithFrame>()
      .partial<"layoutSubviews", &ClockView::layoutSubviews>("the timer, and no other clock")
      .method<"_start:", &ClockView::start>()
      .method<"_stop", &ClockView::stop>()
      .finish();
}

void addClockApplication() {
  onIconTap("Clock", [] { clockWindow().open("_ClockTimerView"); });
  addPreRenderHook([] {
    if (auto* view = stateOf<ClockView>(clockWindow().view())) view->showTimeLeft();
  });
}

}  // namespace sim
