// Wheels for a duration. Dates are not simulated.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct UIDatePicker : objc::Implementation<UIDatePicker> {
  static constexpr long dateAndTime = 2, countDownTimer = 3;

  long mode = dateAndTime;
  long interval = 1;                     // minutes, of one step of the wheel
  double duration = 0;                   // seconds, as the wheels stood when all of them rested
  objc::Strong<objc::Object> textColor;  // UIColor

  // Whole minutes. Without a count-down the platform gives 0.
  double countDownDuration() const;
  // Rounds down to a step; of what is longer than a day a day is left, which has no place on the
  // wheels and becomes one step, as nothing does. Ignored without a count-down.
  void setCountDownDuration(double seconds);
  // Whether the wheels have that position.
  bool canShow(double seconds) const {
    return mode == countDownTimer && shownDuration(seconds) == seconds;
  }
  // A divisor of 60 up to 30; others are ignored.
  void setMinuteInterval(long minutes);
  void setMode(long chosen);
  void setTextColor(objc::Object color);  // nil: black
  void layoutSubviews();

  static void registerClass();

 private:
  double shownDuration(double seconds) const;
  void removeWheels();
  void makeWheels();
  objc::Strong<objc::Object> makeWheel(long rows, long step, bool isEndless);
  void updateWheels(bool animated = false);
  void wheelDidRest();
  bool wheelsTurn() const;

  CGSize sizeOfWheels_;                                 // the picker's when they were made
  objc::Strong<objc::Object> band_;                     // behind the selected rows
  objc::Strong<objc::Object> hours_, minutes_;          // UIPickerColumnView
  objc::Strong<objc::Object> hoursUnit_, minutesUnit_;  // UILabel
};

}  // namespace sim
