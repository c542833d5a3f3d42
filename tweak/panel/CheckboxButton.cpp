#include "tweak/panel/CheckboxButton.h"

#include "objc/Class.h"
#include "tweak/support/HapticFeedbackHelper.h"

namespace {

struct CheckboxButtonImplementation : objc::Implementation<CheckboxButtonImplementation> {
  // What setIsChecked: stores, and nothing reads: the selected state is what counts.
  bool declaredChecked;

  id init();
  id initWithCoder(objc::Object coder);
  void checkboxSelected(CheckboxButton sender);  // its own action when it is touched
  void toggleCheck();
  void check(bool checked);
  bool isChecked();
  void setSelected(bool selected);

 private:
  id listening(id button);
};

using Checkbox = CheckboxButtonImplementation;

id Checkbox::init() {
  return listening(super<id, "init">());
}

id Checkbox::initWithCoder(objc::Object coder) {
  return listening(super<id, "initWithCoder:">(coder));
}

id Checkbox::listening(id button) {
  UIControl(button).addTarget(objc::Object(button), objc::selector<"checkboxSelected:">(),
                              UIControl::touchUpInside);
  return button;
}

void Checkbox::checkboxSelected(CheckboxButton sender) {
  sender.toggleCheck();
  HapticFeedbackHelper::sendImpact();
}

void Checkbox::toggleCheck() {
  UIControl(self()).setSelected(!isChecked());
}

void Checkbox::check(bool checked) {
  UIControl(self()).setSelected(checked);
}

bool Checkbox::isChecked() {
  return UIControl(self()).isSelected();
}

// Also a programmatic change bounces.
void Checkbox::setSelected(bool selected) {
  constexpr double seconds = 0.3, damping = 0.3, velocity = 5.0;
  super<void, "setSelected:">(selected);
  const UIView box(self());
  box.setAlpha(selected ? 1.0 : 0.3);
  box.setTransform(CGAffineTransform::scale(0.8, 0.8));
  UIKit::animateSpring(
      seconds, damping, velocity, UIKit::allowUserInteraction,
      [box = objc::retain(box)] { box->setTransform(CGAffineTransform::identity()); });
}

}  // namespace

objc::Registration CheckboxButton::registerClass() {
  return objc::ClassBuilder<Checkbox>("CheckboxButton", "UIButton")
      .method<"init", &Checkbox::init>()
      .method<"initWithCoder:", &Checkbox::initWithCoder>()
      .method<"checkboxSelected:", &Checkbox::checkboxSelected>()
      .method<"toggleCheck", &Checkbox::toggleCheck>()
      .method<"check:", &Checkbox::check>()
      .method<"isChecked", &Checkbox::isChecked>()
      .property<"isChecked", &Checkbox::declaredChecked>()
      .method<"setSelected:", &Checkbox::setSelected>()
      .finish();
}
