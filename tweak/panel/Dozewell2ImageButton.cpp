#include "tweak/panel/Dozewell2ImageButton.h"

#include "tweak/support/BundleHelper.h"

using ImageButton = Dozewell2ImageButton;

namespace {

constexpr double dimmed = 0.7;
constexpr float inForce = 999, outOfForce = 250;  // layout priorities
constexpr double gapToText = 6;                   // points
constexpr unsigned long flexibleWidthAndHeight = 18;

id customised(id button) {
  objc::send<void, "customInit">(button);
  return button;
}

}  // namespace

id Dozewell2ImageButton::initWithFrame(CGRect frame) {
  return customised(super<id, "initWithFrame:">(frame));
}

id Dozewell2ImageButton::initWithCoder(objc::Object coder) {
  return customised(super<id, "initWithCoder:">(coder));
}

id Dozewell2ImageButton::initWithImage_font(UIImage image, UIFont font) {
  const id made = super<id, "init">();  // reaches initWithFrame:, and so customInit
  if (made == nullptr) return nullptr;
  of(made).iconImage.load()->setImage(image);
  of(made).textLabel.load()->setFont(font);
  return made;
}

void Dozewell2ImageButton::customInit() {
  const UIView button(self());
  BundleHelper::getBundle().loadNibNamed("ImageButton"_ns, button);
  button.addSubview(contentView);
  contentView->setFrame(button.bounds());
  contentView->setAutoresizingMask(flexibleWidthAndHeight);
}

void Dozewell2ImageButton::setIconHidden(bool hidden) {
  iconImage.load()->setHidden(hidden);
  iconAspectRatioConstraint.load()->setPriority(hidden ? outOfForce : inForce);
  iconWidthConstraint.load()->setPriority(hidden ? inForce : outOfForce);
  labelLeadingConstraint.load()->setConstant(hidden ? 0 : gapToText);
}

// Pressed and selected look the same, on purpose.
void Dozewell2ImageButton::setHighlighted(bool highlighted) {
  super<void, "setHighlighted:">(highlighted);
  UIView(self()).setAlpha(highlighted ? dimmed : 1.0);
}

void Dozewell2ImageButton::setSelected(bool selected) {
  super<void, "setSelected:">(selected);
  UIView(self()).setAlpha(selected ? dimmed : 1.0);
}

void Dozewell2ImageButton::setTintColor(UIColor color) {
  super<void, "setTintColor:">(color);
  textLabel.load()->setTextColor(color);
  iconImage.load()->setTintColor(color);
  UIButton(self()).setTitleColor(color);
}

Class Dozewell2ImageButton::registerClass() {
  return objc::ClassBuilder<ImageButton>("Dozewell2ImageButton", "UIButton")
      .property<"contentView", &ImageButton::contentView>()
      .property<"iconImage", &ImageButton::iconImage>()
      .property<"textLabel", &ImageButton::textLabel>()
      .property<"iconAspectRatioConstraint", &ImageButton::iconAspectRatioConstraint>()
      .property<"iconWidthConstraint", &ImageButton::iconWidthConstraint>()
      .property<"labelLeadingConstraint", &ImageButton::labelLeadingConstraint>()
      .method<"initWithFrame:", &ImageButton::initWithFrame>()
      .method<"initWithCoder:", &ImageButton::initWithCoder>()
      .method<"initWithImage:font:", &ImageButton::initWithImage_font>()
      .method<"customInit", &ImageButton::customInit>()
      .method<"setIconHidden:", &ImageButton::setIconHidden>()
      .method<"setHighlighted:", &ImageButton::setHighlighted>()
      .method<"setSelected:", &ImageButton::setSelected>()
      .method<"setTintColor:", &ImageButton::setTintColor>()
      .finish();
}
