#include "simulator/springboard/SBHomeBar.h"

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/controls/UIControl.h"

namespace sim {

using objc::Object;

Object SBHomeBar::initWithFrame(CGRect frame) {
  const Object made = super<Object, "initWithFrame:">(frame);
  if (made)
    UIControl::of(self()).addTarget(made, objc::selector<"_leave">(),
                                    UIControl::touchUpInside | UIControl::touchUpOutside);
  return made;
}

// The application's views go with it.
void SBHomeBar::leave() {
  const auto kept = objc::retain(Object(self()));
  const auto does = goHome;
  if (does) does();
}

void SBHomeBar::registerClass() {
  StandIn<SBHomeBar>("SpringBoard", "_SBHomeBar", "UIControl")
      .method<"initWithFrame:", &SBHomeBar::initWithFrame>()
      .method<"_leave", &SBHomeBar::leave>()
      .finish();
}

}  // namespace sim
