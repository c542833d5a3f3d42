#include "simulator/uikit/pickers/UIDatePicker.h"

#include <algorithm>
#include <cmath>

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/pickers/PickerTouches.h"

namespace sim {
namespace {

// Private. The argument is a BOOL, but callers also hand over an object, which is no bool that C++
// may look at.
void setHighlightsToday(id, SEL, id) {}

void addHighlightsToday() {
  if (FidelityPage("UIKit", "UIDatePicker")
          .record('-', "setHighlightsToday:", {Grade::partial, "draws nothing"}))
    class_addMethod(UIDatePicker::cls(), sel_registerName("setHighlightsToday:"),
                    reinterpret_cast<IMP>(&setHighlightsToday),
                    objc::methodEncoding<void, bool>.c_str());
}

}  // namespace

double UIDatePicker::shownDuration(double seconds) const {
  const double step = double(interval) * 60;
  constexpr double day = 24 * 3600;
  const double shown = std::floor(std::clamp(seconds, 0.0, day) / step) * step;
  return shown == day ? step : std::max(shown, step);
}

double UIDatePicker::countDownDuration() const {
  return mode == countDownTimer ? shownDuration(duration) : 0;
}

void UIDatePicker::setCountDownDuration(double seconds) {
  if (mode != countDownTimer) return;
  duration = shownDuration(seconds);
  updateWheels();
}

void UIDatePicker::setMinuteInterval(long minutes) {
  if (minutes < 1 || minutes > 30 || 60 % minutes != 0) return;
  interval = minutes;
  duration = shownDuration(duration);
  removeWheels();
}

void UIDatePicker::registerClass() {
  StandIn<UIDatePicker> picker("UIKit", "UIDatePicker", "UIControl");
  addPickerTouches(picker);
  picker.readonlyProperty<"datePickerMode", &UIDatePicker::mode>()
      .partial<"setDatePickerMode:", &UIDatePicker::setMode>("only the count-down has wheels")
      .method<"countDownDuration", &UIDatePicker::countDownDuration>()
      .method<"setCountDownDuration:", &UIDatePicker::setCountDownDuration>()
      .readonlyProperty<"minuteInterval", &UIDatePicker::interval>()
      .method<"setMinuteInterval:", &UIDatePicker::setMinuteInterval>()
      .partial<"layoutSubviews", &UIDatePicker::layoutSubviews>(
          "wheels and units have measures of their own, and units do not fade")
      .readonlyProperty<"_textColor", &UIDatePicker::textColor>()
      .method<"_setTextColor:", &UIDatePicker::setTextColor>()
      .finish();
  if (UIDatePicker::cls() != nullptr) addHighlightsToday();
}

}  // namespace sim
