#include "simulator/preferences/SwitchView.h"

#include "simulator/preferences/Style.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;

Object SwitchView::initWithFrame(CGRect frame) {
  const Object made = super<Object, "initWithFrame:">(frame);
  if (!made) return nullptr;
  objc::send<void, "setUserInteractionEnabled:">(made, false);
  knob = addView(made, "UIView");
  fill(knob.get(), whiteColor(1), size.height / 2 - 2);
  setOn(false);
  return made;
}

void SwitchView::setOn(bool on) {
  isOn = on;
  fill(Object(self()), on ? style::green() : style::line(), size.height / 2);
  objc::send<void, "setNeedsLayout">(self());
}

void SwitchView::layoutSubviews() {
  constexpr double margin = 2, side = size.height - 2 * margin;
  super<void, "layoutSubviews">();
  const double x = isOn ? size.width - margin - side : margin;
  setFrame(knob.get(), style::placed({{x, margin}, {side, side}}, size.width));
}

void SwitchView::registerClass() {
  StandIn<SwitchView>("Preferences", "_SettingsSwitch", "UIView")
      .method<"initWithFrame:", &SwitchView::initWithFrame>()
      .method<"layoutSubviews", &SwitchView::layoutSubviews>()
      .finish();
}

}  // namespace sim
