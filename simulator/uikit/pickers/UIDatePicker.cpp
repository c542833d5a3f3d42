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
  constexpr double longest = (23 * 60 + 59) * 60;
  return std::max(std::floor(std::min(seconds, longest) / step) * step, step);
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
  const bool works = minutes >= 1 && minutes <= 30 && 60 % minutes == 0;
  interval = works ? minutes : 1;
  duration = shownDuration(duration);
  removeWheels();
}

void UIDatePicker::registerClass() {
  StandIn<UIDatePicker> picker("UIKit", "UIDatePicker", "UIControl");
  addPickerTouches(picker);
  picker.readonlyProperty<"datePickerMode", &UIDatePicker::mode>()
      .partial<"setDatePickerMode:", &UIDatePicker::setMode>("only the count-down has wheels")
      .method<"countDownDuration", &UIDatePicker::countDownDuration>()
      .partial<"setCountDownDuration:", &UIDatePicker::setCountDownDuration>(
          "24 hours and more become the last step before, not 0:00")
      .readonlyProperty<"minuteInterval", &UIDatePicker::interval>()
      .partial<"setMinuteInterval:", &UIDatePicker::setMinuteInterval>(
          "a step that is not allowed becomes 1, where a phone keeps the one of before")
      .method<"layoutSubviews", &UIDatePicker::layoutSubviews>()
      .readonlyProperty<"_textColor", &UIDatePicker::textColor>()
      .method<"_setTextColor:", &UIDatePicker::setTextColor>()
      .finish();
  if (UIDatePicker::cls() != nullptr) addHighlightsToday();
}

}  // namespace sim
