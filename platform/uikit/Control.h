// UIKit's controls.
#pragma once

#include "platform/uikit/View.h"

struct UIControl : UIView {
  using UIView::UIView;
  static constexpr unsigned long touchUpInside = 1 << 6;
  static constexpr unsigned long normalState = 0;

  // The target is not retained.
  void addTarget(objc::Object target, SEL action, unsigned long events) const {
    objc::send<void, "addTarget:action:forControlEvents:">(*this, target, action, events);
  }
  bool isSelected() const { return objc::send<bool, "isSelected">(*this); }
  void setSelected(bool selected) const { objc::send<void, "setSelected:">(*this, selected); }
};

struct UIButton : UIControl {
  using UIControl::UIControl;
  enum class Type : long { custom = 0, system = 1 };
  static Class cls() { return objc::classNamed<"UIButton">(); }
  static UIButton buttonWithType(Type type) { return buttonWithType(cls(), type); }
  // Of a class below UIButton.
  static UIButton buttonWithType(Class cls, Type type) {
    return objc::send<UIButton, "buttonWithType:">(cls, type);
  }
  UILabel titleLabel() const { return objc::send<UILabel, "titleLabel">(*this); }
  void setTitle(NSString title) const {
    objc::send<void, "setTitle:forState:">(*this, title, normalState);
  }
  void setTitleColor(UIColor color) const {
    objc::send<void, "setTitleColor:forState:">(*this, color, normalState);
  }
  void setImage(UIImage image) const {
    objc::send<void, "setImage:forState:">(*this, image, normalState);
  }
};

struct UIStackView : UIView {
  using UIView::UIView;
  enum class Axis : long { horizontal = 0, vertical = 1 };
  enum class Distribution : long { fill = 0, fillEqually = 1 };
  enum class Alignment : long { fill = 0, leading = 1, center = 3 };
  static objc::Strong<UIStackView> make(CGRect frame) {
    return objc::adopt(objc::send<UIStackView, "initWithFrame:">(
        objc_alloc(objc::classNamed<"UIStackView">()), frame));
  }
  void setAxis(Axis axis) const { objc::send<void, "setAxis:">(*this, axis); }
  void setDistribution(Distribution distribution) const {
    objc::send<void, "setDistribution:">(*this, distribution);
  }
  void setAlignment(Alignment alignment) const {
    objc::send<void, "setAlignment:">(*this, alignment);
  }
  void setSpacing(double points) const { objc::send<void, "setSpacing:">(*this, points); }
  void addArrangedSubview(UIView view) const {
    objc::send<void, "addArrangedSubview:">(*this, view);
  }
};

struct UIDatePicker : UIControl {
  using UIControl::UIControl;
  static constexpr long countDownTimerMode = 3;
  static objc::Strong<UIDatePicker> make(CGRect frame) {
    return objc::adopt(objc::send<UIDatePicker, "initWithFrame:">(
        objc_alloc(objc::classNamed<"UIDatePicker">()), frame));
  }
  void setDatePickerMode(long mode) const { objc::send<void, "setDatePickerMode:">(*this, mode); }
  long minuteInterval() const { return objc::send<long, "minuteInterval">(*this); }
  void setMinuteInterval(long minutes) const {  // a divisor of 60; others count as 1
    objc::send<void, "setMinuteInterval:">(*this, minutes);
  }
  double countDownDuration() const {  // seconds
    return objc::send<double, "countDownDuration">(*this);
  }
  void setCountDownDuration(double seconds) const {
    objc::send<void, "setCountDownDuration:">(*this, seconds);
  }
  void setPrivateTextColor(UIColor color) const {
    objc::send<void, "_setTextColor:">(*this, color);
  }
  // Private, and not on every system: there nothing happens. `value` is handed on as the object it
  // is, to a method that takes a plain BOOL.
  void performSetHighlightsToday(NSNumber value) const {
    if (objc::respondsTo<"setHighlightsToday:">(*this))
      performSelector(objc::selector<"setHighlightsToday:">(), value);
  }
};

struct UIPickerView : UIView {
  using UIView::UIView;
  static objc::Strong<UIPickerView> make(CGRect frame) {
    return objc::adopt(objc::send<UIPickerView, "initWithFrame:">(
        objc_alloc(objc::classNamed<"UIPickerView">()), frame));
  }
  // Neither is retained.
  void setDataSource(objc::Object source) const {
    objc::send<void, "setDataSource:">(*this, source);
  }
  void setDelegate(objc::Object delegate) const {
    objc::send<void, "setDelegate:">(*this, delegate);
  }
  void selectRow(long row, long component, bool animated) const {
    objc::send<void, "selectRow:inComponent:animated:">(*this, row, component, animated);
  }
  long selectedRowInComponent(long component) const {  // -1: none
    return objc::send<long, "selectedRowInComponent:">(*this, component);
  }
};
