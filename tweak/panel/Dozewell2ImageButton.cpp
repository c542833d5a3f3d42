#include "tweak/panel/Dozewell2ImageButton.h"

#include "objc/Class.h"
#include "tweak/support/BundleHelper.h"

namespace {

struct Dozewell2ImageButtonImplementation
    : objc::Implementation<Dozewell2ImageButtonImplementation> {
  // All from the layout; nil without it.
  objc::Strong<UIView> contentView;
  objc::Weak<UIImageView> iconImage;
  objc::Weak<UILabel> textLabel;
  objc::Weak<NSLayoutConstraint> iconAspectRatioConstraint;  // in force while the icon is shown
  objc::Weak<NSLayoutConstraint> iconWidthConstraint;        // in force while it is hidden
  objc::Weak<NSLayoutConstraint> labelLeadingConstraint;     // from the icon to the text

  id initWithFrame(CGRect frame);
  id initWithCoder(objc::Object coder);
  id initWithImage_font(UIImage image, UIFont font);
  void customInit();
  void setIconHidden(bool hidden);
  void setHighlighted(bool highlighted);
  void setSelected(bool selected);
  void setTintColor(UIColor color);
};

using ImageButton = Dozewell2ImageButtonImplementation;

constexpr double dimmed = 0.7;
constexpr float inForce = 999, outOfForce = 250;  // layout priorities
constexpr double gapToText = 6;                   // points
constexpr unsigned long flexibleWidthAndHeight = 18;

id customised(id button) {
  Dozewell2ImageButton(button).customInit();
  return button;
}

id ImageButton::initWithFrame(CGRect frame) {
  return customised(super<id, "initWithFrame:">(frame));
}

id ImageButton::initWithCoder(objc::Object coder) {
  return customised(super<id, "initWithCoder:">(coder));
}

id ImageButton::initWithImage_font(UIImage image, UIFont font) {
  const id made = super<id, "init">();  // reaches initWithFrame:, and so customInit
  if (made == nullptr) return nullptr;
  of(made).iconImage.load()->setImage(image);
  of(made).textLabel.load()->setFont(font);
  return made;
}

void ImageButton::customInit() {
  const UIView button(self());
  BundleHelper::getBundle().loadNibNamed("ImageButton"_ns, button);
  button.addSubview(contentView);
  contentView->setFrame(button.bounds());
  contentView->setAutoresizingMask(flexibleWidthAndHeight);
}

void ImageButton::setIconHidden(bool hidden) {
  iconImage.load()->setHidden(hidden);
  iconAspectRatioConstraint.load()->setPriority(hidden ? outOfForce : inForce);
  iconWidthConstraint.load()->setPriority(hidden ? inForce : outOfForce);
  labelLeadingConstraint.load()->setConstant(hidden ? 0 : gapToText);
}

// Pressed and selected look the same: a button that stays chosen stays dimmed
// (panel-button-image-pressed).
void ImageButton::setHighlighted(bool highlighted) {
  super<void, "setHighlighted:">(highlighted);
  UIView(self()).setAlpha(highlighted ? dimmed : 1.0);
}

void ImageButton::setSelected(bool selected) {
  super<void, "setSelected:">(selected);
  UIView(self()).setAlpha(selected ? dimmed : 1.0);
}

void ImageButton::setTintColor(UIColor color) {
  super<void, "setTintColor:">(color);
  textLabel.load()->setTextColor(color);
  iconImage.load()->setTintColor(color);
  UIButton(self()).setTitleColor(color);
}

}  // namespace

objc::Registration Dozewell2ImageButton::registerClass() {
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
