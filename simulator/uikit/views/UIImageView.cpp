#include "simulator/uikit/views/UIImageView.h"

#include "simulator/foundation/Kind.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/resources/UIImage.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {

using objc::Object;

namespace {

unsigned long pictureTraits(Object self) {
  return accessibilityTraitsOr(self.get(), ViewAccessibility::image);
}

}  // namespace

Object UIImageView::initWithFrame(CGRect frame) {
  const Object made = super<Object, "initWithFrame:">(frame);
  if (made) UIView::of(made).userInteractionEnabled = false;
  return made;
}

Object UIImageView::initWithImage(Object shown) {
  const UIImage* its = stateOf<UIImage>(shown);
  const Object made = objc::send<Object, "initWithFrame:">(
      self(), CGRect{{}, its != nullptr ? its->size : CGSize()});
  if (made) image = objc::retain(shown);
  return made;
}

void UIImageView::setImage(Object shown) {
  image = objc::retain(shown);
  objc::send<void, "invalidateIntrinsicContentSize">(self());
}

CGSize UIImageView::intrinsicContentSize() const {
  constexpr double noIntrinsicMetric = -1;
  const UIImage* its = stateOf<UIImage>(image.get());
  return its != nullptr ? its->size : CGSize{noIntrinsicMetric, noIntrinsicMetric};
}

void UIImageView::registerClass() {
  StandIn<UIImageView>("UIKit", "UIImageView", "UIView")
      .method<"initWithFrame:", &UIImageView::initWithFrame>()
      .method<"initWithImage:", &UIImageView::initWithImage>()
      .readonlyProperty<"image", &UIImageView::image>()
      .method<"setImage:", &UIImageView::setImage>()
      .method<"accessibilityTraits", &pictureTraits>()
      .method<"intrinsicContentSize", &UIImageView::intrinsicContentSize>()
      .method<"sizeThatFits:", &UIImageView::sizeThatFits>()
      .finish();
}

}  // namespace sim
