#include "tweak/panel/CheckboxButton.h"

#include "tweak/support/HapticFeedbackHelper.h"

id CheckboxButton::init() {
  return listening(super<id, "init">());
}

id CheckboxButton::initWithCoder(objc::Object coder) {
  return listening(super<id, "initWithCoder:">(coder));
}

id CheckboxButton::listening(id button) {
  UIControl(button).addTarget(objc::Object(button), objc::selector<"checkboxSelected:">(),
                              UIControl::touchUpInside);
  return button;
}

void CheckboxButton::checkboxSelected(objc::Object sender) {
  objc::send<void, "toggleCheck">(sender);
  HapticFeedbackHelper::sendImpact();
}

void CheckboxButton::toggleCheck() {
  UIControl(self()).setSelected(!isChecked());
}

void CheckboxButton::check(bool checked) {
  UIControl(self()).setSelected(checked);
}

bool CheckboxButton::isChecked() {
  return UIControl(self()).isSelected();
}

// Also a programmatic change bounces.
void CheckboxButton::setSelected(bool selected) {
  constexpr double seconds = 0.3, damping = 0.3, velocity = 5.0;
  super<void, "setSelected:">(selected);
  const UIView box(self());
  box.setAlpha(selected ? 1.0 : 0.3);
  box.setTransform(CGAffineTransform::scale(0.8, 0.8));
  UIKit::animateSpring(
      seconds, damping, velocity, UIKit::allowUserInteraction,
      [box = objc::retain(box)] { box->setTransform(CGAffineTransform::identity()); });
}

Class CheckboxButton::registerClass() {
  return objc::ClassBuilder<CheckboxButton>("CheckboxButton", "UIButton")
      .method<"init", &CheckboxButton::init>()
      .method<"initWithCoder:", &CheckboxButton::initWithCoder>()
      .method<"checkboxSelected:", &CheckboxButton::checkboxSelected>()
      .method<"toggleCheck", &CheckboxButton::toggleCheck>()
      .method<"check:", &CheckboxButton::check>()
      .method<"isChecked", &CheckboxButton::isChecked>()
      .property<"isChecked", &CheckboxButton::declaredChecked>()
      .method<"setSelected:", &CheckboxButton::setSelected>()
      .finish();
}
