#include "simulator/controlcenter/CCUIContinuousSliderView.h"

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/controls/UISlider.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;
using Slider = CCUIContinuousSliderView;

Object Slider::initWithFrame(CGRect frame) {
  const Object made = super<Object, "initWithFrame:">(frame);
  if (made) UISlider::of(made).goesUp = true;
  return made;
}

void Slider::layoutSubviews() {
  super<void, "layoutSubviews">();
  const UISlider& slider = UISlider::of(self());
  const CGSize size = sizeOf(Object(self()));
  const double height = size.height * slider.partAt(slider.value);
  setAlpha(slider.track, 0);
  setFrame(slider.filled, {{0, size.height - height}, {size.width, height}});
  fill(slider.filled, whiteColor(0.9));
}

void Slider::registerClass() {
  StandIn<Slider>("ControlCenterUIKit", "CCUIContinuousSliderView", "UISlider")
      .partial<"layoutSubviews", &Slider::layoutSubviews>(
          "a slider of the system's own, where a phone has one for Control Center alone")
      .method<"initWithFrame:", &Slider::initWithFrame>()
      .finish();
}

}  // namespace sim
