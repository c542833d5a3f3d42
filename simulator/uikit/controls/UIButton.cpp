#include "simulator/uikit/controls/UIButton.h"

#include "simulator/foundation/Kind.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/resources/UIFont.h"
#include "simulator/uikit/views/UIImageView.h"
#include "simulator/uikit/views/UILabel.h"
#include "simulator/uikit/views/ViewAccessibility.h"

namespace sim {
namespace {

using objc::Object;

unsigned long stateNow(id self) {
  return UIControl::of(self).state();
}

Object buttonWithType(id cls, long type) {
  auto made = objc::adopt(
      objc::send<Object, "initWithFrame:">(objc_alloc(reinterpret_cast<Class>(cls)), CGRect()));
  if (made) UIButton::of(made.get()).buttonType = type;
  return autorelease(std::move(made));
}

template <StateValues UIButton::*values>
Object valueForState(Object self, unsigned long state) {
  return (UIButton::of(self).*values).shownIn(state);
}
template <StateValues UIButton::*values>
Object current(Object self) {
  return (UIButton::of(self).*values).shownIn(stateNow(self.get()));
}

template <objc::FixedString Setter>
void setFlag(Object self, bool value) {
  objc::sendSuper<void, Setter>(self.get(), UIButton::cls(), value);
  UIButton::of(self).showState();
}

void tintColorDidChange(Object self) {
  objc::sendSuper<void, "tintColorDidChange">(self.get(), UIButton::cls());
  UIButton::of(self).showState();
}

void subviewDidChangeSize(Object self) {
  objc::send<void, "setNeedsLayout">(self);
}

// The title; a picture says nothing.
Object spokenTitle(Object self) {
  return accessibilityLabelOr(self.get(), UIButton::of(self).titles.shownIn(stateNow(self.get())));
}
unsigned long buttonTraits(Object self) {
  return accessibilityTraitsOr(self.get(),
                               ViewAccessibility::button | UIControl::of(self).stateTraits());
}
bool buttonIsElement(Object self) {
  return isAccessibilityElementOr(self.get(), true);
}

CGSize sizeThatFits(Object self, CGSize) {
  return objc::send<CGSize, "intrinsicContentSize">(self);
}

}  // namespace

void StateValues::set(Object value, unsigned long state) {
  if (value)
    values[state] = objc::retain(value);
  else
    values.erase(state);
}

Object StateValues::exactly(unsigned long state) const {
  const auto found = values.find(state);
  return found == values.end() ? Object() : found->second.get();
}

Object StateValues::shownIn(unsigned long state) const {
  const Object exact = exactly(state);
  return exact ? exact : exactly(UIControl::normal);
}

Object UIButton::titleLabel() {
  if (!label && UILabel::cls() != nullptr) {
    label = UILabel::make();
    objc::send<void, "addSubview:">(self(), label.get());
  }
  return label;
}

Object UIButton::itsImageView() {
  if (!imageView && UIImageView::cls() != nullptr) {
    imageView = UIImageView::make();
    objc::send<void, "addSubview:">(self(), imageView.get());
  }
  return imageView;
}

void UIButton::setTitle(Object title, unsigned long state) {
  const auto copied = objc::adopt(objc::send<Object, "copy">(title));
  titles.set(copied.get(), state);
  showState();
}

void UIButton::setImage(Object image, unsigned long state) {
  images.set(image, state);
  showState();
}

void UIButton::setTitleColor(Object color, unsigned long state) {
  titleColors.set(color, state);
  showState();
}

// A system button's title has the tint, another's is white.
Object UIButton::currentTitleColor() const {
  if (const Object set = titleColors.shownIn(stateNow(self()))) return set;
  if (buttonType == system) return objc::send<Object, "tintColor">(self());
  return objc::send<Object, "whiteColor">(objc_getClass("UIColor"));
}

void UIButton::showState() {
  const Object title = titles.shownIn(stateNow(self()));
  const Object image = images.shownIn(stateNow(self()));
  if (title || label) {
    objc::send<void, "setText:">(titleLabel(), title);
    objc::send<void, "setTextColor:">(titleLabel(), currentTitleColor());
  }
  if (image || imageView) objc::send<void, "setImage:">(itsImageView(), image);
  objc::send<void, "invalidateIntrinsicContentSize">(self());
  objc::send<void, "setNeedsLayout">(self());
}

CGSize UIButton::intrinsicContentSize() const {
  const auto sizeOf = [](Object part, bool isShown) {
    return isShown ? objc::send<CGSize, "intrinsicContentSize">(part) : CGSize();
  };
  const CGSize title = sizeOf(label, bool(titles.shownIn(stateNow(self()))));
  const CGSize image = sizeOf(imageView, bool(images.shownIn(stateNow(self()))));
  constexpr double margin = 6;  // above and below the title
  return {std::max(title.width + image.width, 30.0),
          std::max(title.height + 2 * margin, image.height)};
}

void UIButton::registerClass() {
  StandIn<UIButton>("UIKit", "UIButton", "UIControl")
      .factory<"buttonWithType:", &buttonWithType>()
      .readonlyProperty<"buttonType", &UIButton::buttonType>()
      .method<"titleLabel", &UIButton::titleLabel>()
      .method<"imageView", &UIButton::itsImageView>()
      .method<"setTitle:forState:", &UIButton::setTitle>()
      .method<"setImage:forState:", &UIButton::setImage>()
      .method<"setTitleColor:forState:", &UIButton::setTitleColor>()
      .method<"titleForState:", &valueForState<&UIButton::titles>>()
      .method<"imageForState:", &valueForState<&UIButton::images>>()
      .method<"titleColorForState:", &valueForState<&UIButton::titleColors>>()
      .method<"currentTitle", &current<&UIButton::titles>>()
      .method<"currentImage", &current<&UIButton::images>>()
      .method<"currentTitleColor", &UIButton::currentTitleColor>()
      .method<"setSelected:", &setFlag<"setSelected:">>()
      .method<"setHighlighted:", &setFlag<"setHighlighted:">>()
      .method<"setEnabled:", &setFlag<"setEnabled:">>()
      .method<"_subviewDidChangeSize", &subviewDidChangeSize>()
      .method<"tintColorDidChange", &tintColorDidChange>()
      .method<"accessibilityLabel", &spokenTitle>()
      .method<"accessibilityTraits", &buttonTraits>()
      .method<"isAccessibilityElement", &buttonIsElement>()
      .partial<"intrinsicContentSize", &UIButton::intrinsicContentSize>(
          "no insets, no configurations")
      .partial<"sizeThatFits:", &sizeThatFits>("no insets, no configurations")
      .partial<"layoutSubviews", &UIButton::layoutSubviews>(
          "always in the middle, the image before the title")
      .finish();
}

}  // namespace sim
