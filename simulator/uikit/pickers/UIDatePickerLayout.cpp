// UIDatePicker: the wheels of a count-down.
#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/pickers/DurationUnits.h"
#include "simulator/uikit/pickers/PickerStyle.h"
#include "simulator/uikit/pickers/UIDatePicker.h"
#include "simulator/uikit/pickers/UIPickerColumnView.h"
#include "simulator/uikit/views/LayoutDirection.h"
#include "simulator/uikit/views/UIView.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

// Points. A wheel is wide enough for two digits, which end where the unit begins.
constexpr double rowHeight = 32, digitsWidth = 40, beforeUnit = 6, betweenWheels = 28;
constexpr long hoursOfDay = 24;

Object localizedNumber(long value) {
  const auto formatter = objc::adopt(objc::send<Object, "new">(objc_getClass("NSNumberFormatter")));
  if (!formatter) return string(std::to_string(value));
  return objc::send<Object, "stringFromNumber:">(formatter.get(), number(value));
}

// The wheels stay where they are when the unit changes its number.
std::string widestHourUnit(std::string_view locale) {
  std::string widest;
  for (long hours = 0; hours < hoursOfDay; ++hours)
    if (std::string unit = hourUnit(hours, locale);
        textWidth(unit, pickerUnit) > textWidth(widest, pickerUnit))
      widest = std::move(unit);
  return widest;
}

CGSize sizeOf(Object view) {
  return UIView::of(view).geometry().bounds.size;
}

// Lays out from the leading edge, whichever that is.
class Row {
 public:
  Row(const CGRect& bounds, double width, bool isRightToLeft)
      : bounds_(bounds), x_((bounds.size.width - width) / 2), isRightToLeft_(isRightToLeft) {}

  void add(Object view, CGSize size) {
    const double x = isRightToLeft_ ? bounds_.size.width - x_ - size.width : x_;
    const double y = bounds_.origin.y + (bounds_.size.height - size.height) / 2;
    objc::send<void, "setFrame:">(view, CGRect{{bounds_.origin.x + x, y}, size});
    x_ += size.width;
  }
  void skip(double width) { x_ += width; }

 private:
  CGRect bounds_;
  double x_;
  bool isRightToLeft_;
};

}  // namespace

void UIDatePicker::setMode(long chosen) {
  mode = chosen;
  removeWheels();
}

void UIDatePicker::setTextColor(Object color) {
  textColor = objc::retain(color);
  removeWheels();
}

void UIDatePicker::removeWheels() {
  for (auto* part : {&band_, &hours_, &minutes_, &hoursUnit_, &minutesUnit_}) {
    if (auto* wheel = stateOf<UIPickerColumnView>(part->get())) wheel->rested = nullptr;
    if (*part) removeFromSuperview(part->get());
    *part = nullptr;
  }
  objc::send<void, "setNeedsLayout">(self());
}

// Digits stand at the end of their row.
Strong<Object> UIDatePicker::makeWheel(long rows, long step, bool isEndless) {
  auto made = UIPickerColumnView::make();
  UIPickerColumnView& wheel = UIPickerColumnView::of(made.get());
  objc::send<void, "setUserInteractionEnabled:">(made.get(), false);
  wheel.rowHeight = rowHeight;
  wheel.numberOfRows = rows;
  wheel.isEndless = isEndless;
  wheel.makeRow = [step, color = textColor](long row) {
    auto label = pickerLabel(localizedNumber(row * step), pickerDigits, color);
    objc::send<void, "setTextAlignment:">(label.get(), interfaceIsRightToLeft() ? 0L : 2L);
    objc::send<void, "setBounds:">(label.get(), CGRect{{}, {digitsWidth, rowHeight}});
    return label;
  };
  return made;
}

void UIDatePicker::makeWheels() {
  if (hours_ || UIPickerColumnView::cls() == nullptr) return;
  band_ = pickerBand();
  hours_ = makeWheel(hoursOfDay, 1, false);
  minutes_ = makeWheel(60 / interval, interval, true);
  const std::string& locale = Phone::current().setup.locale;
  hoursUnit_ = pickerLabel(string(widestHourUnit(locale)), pickerUnit, textColor);
  minutesUnit_ = pickerLabel(string(minuteUnit(locale)), pickerUnit, textColor);
  std::size_t index = 0;
  for (const auto* part : {&band_, &hours_, &hoursUnit_, &minutes_, &minutesUnit_})
    insertSubview(Object(self()), part->get(), index++);
  for (const auto* wheel : {&hours_, &minutes_})
    UIPickerColumnView::of(wheel->get()).rested = [this] { wheelDidRest(); };
  updateWheels();
}

bool UIDatePicker::wheelsTurn() const {
  return UIPickerColumnView::of(hours_.get()).isTurning() ||
         UIPickerColumnView::of(minutes_.get()).isTurning();
}

// By hand. Nothing counts before the last of them rests. The wheels do not rest at nothing: they go
// on to the first step.
void UIDatePicker::wheelDidRest() {
  if (wheelsTurn()) return;
  const long hours = UIPickerColumnView::of(hours_.get()).selectedRow;
  const long minutes = UIPickerColumnView::of(minutes_.get()).selectedRow * interval;
  const double stands = double(hours * 60 + minutes) * 60;
  if (stands == countDownDuration()) return;
  const auto kept = objc::retain(Object(self()));
  duration = shownDuration(stands);
  updateWheels(minutes == 0 && hours == 0);
  UIControl::of(self()).sendActionsForEvents(UIControl::valueChanged, nullptr);
}

void UIDatePicker::updateWheels(bool animated) {
  if (!hours_) return;
  const long shown = std::lround(countDownDuration() / 60);
  UIPickerColumnView::of(hours_.get()).selectRow(shown / 60, animated);
  UIPickerColumnView::of(minutes_.get()).selectRow(shown % 60 / interval, animated);
  objc::send<void, "setText:">(hoursUnit_.get(),
                               string(hourUnit(shown / 60, Phone::current().setup.locale)));
}

void UIDatePicker::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGRect bounds = UIView::of(self()).geometry().bounds;
  if (std::exchange(sizeOfWheels_, bounds.size) != bounds.size) removeWheels();
  if (mode == countDownTimer) makeWheels();
  if (!hours_) return;
  objc::send<void, "setFrame:">(band_.get(), pickerBandFrame(bounds, rowHeight));
  const CGSize wheel = {digitsWidth, bounds.size.height};
  const CGSize hoursUnit = sizeOf(hoursUnit_.get()), minutesUnit = sizeOf(minutesUnit_.get());
  const double width =
      2 * (digitsWidth + beforeUnit) + hoursUnit.width + betweenWheels + minutesUnit.width;
  Row row(bounds, width, interfaceIsRightToLeft());
  row.add(hours_.get(), wheel);
  row.skip(beforeUnit);
  row.add(hoursUnit_.get(), hoursUnit);
  row.skip(betweenWheels);
  row.add(minutes_.get(), wheel);
  row.skip(beforeUnit);
  row.add(minutesUnit_.get(), minutesUnit);
}

}  // namespace sim
