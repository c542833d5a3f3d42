#include "simulator/controlcenter/CCUIRoundButton.h"

#include <utility>

#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;
using Button = CCUIRoundButton;

void Button::setUse(Use use) {
  const Object me(self());
  isOn_ = std::move(use.isOn);
  turn_ = std::move(use.turn);
  onColor_ = objc::retain(use.color);
  offColor_ = objc::retain(whiteColor(use.offAlpha));
  plate_ = addView(me, "UIView");
  setFrame(plate_, use.plate);
  fill(plate_, offColor_, use.radius);
  objc::send<void, "setUserInteractionEnabled:">(plate_.get(), false);
  const CGPoint middle = {use.plate.size.width / 2, use.plate.size.height / 2};
  onGlyph_ = addModuleSymbol(plate_, use.symbol, middle, use.ink);
  offGlyph_ = addModuleSymbol(plate_, use.symbol, middle, whiteColor(1));
  objc::send<void, "setAccessibilityLabel:">(me, string(use.name));
  addTapTarget(me, me, objc::selector<"_tap">());
  refresh();
}

void Button::refresh() {
  const bool on = isSelected();
  if (std::exchange(shown_, on) == on) return;
  UIControl::of(self()).selected = on;
  objc::send<void, "setBackgroundColor:">(plate_.get(), on ? onColor_.get() : offColor_.get());
  setAlpha(onGlyph_, on ? 1 : 0);
  setAlpha(offGlyph_, on ? 0 : 1);
}

// What it does may close Control Center.
void Button::tap() {
  const auto kept = objc::retain(Object(self()));
  const auto turn = turn_;
  if (turn) turn(!isSelected());
  refresh();
}

void Button::registerClass() {
  StandIn<Button>("ControlCenterUIKit", "CCUIRoundButton", "UIControl")
      .method<"isSelected", &Button::isSelected>()
      .partial<"_tap", &Button::tap>("changes its look at once")
      .finish();
}

}  // namespace sim
