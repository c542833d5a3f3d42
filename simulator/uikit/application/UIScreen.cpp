#include "simulator/uikit/application/UIScreen.h"

#include "simulator/foundation/Kind.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/application/UIApplication.h"

namespace sim {
namespace {

struct Backlight {
  bool isOn = true;
};

}  // namespace

bool UIScreen::isLit() {
  return Phone::current().state<Backlight>().isOn;
}
void UIScreen::setLit(bool isOn) {
  Phone::current().state<Backlight>().isOn = isOn;
}

objc::Object UIScreen::mainScreen() {
  if (cls() == nullptr) return nullptr;  // left out of the phone
  return objc::Object(shared().self());
}

CGSize UIScreen::size() {
  const UIApplication* application = stateOf<UIApplication>(UIApplication::sharedApplication());
  const bool isTurned =
      application != nullptr && application->orientation >= UIApplication::landscapeRight;
  return isTurned ? CGSize{mainSize.height, mainSize.width} : mainSize;
}

void UIScreen::registerClass() {
  StandIn<UIScreen>("UIKit", "UIScreen", "NSObject")
      .classMethod<"mainScreen", &UIScreen::mainScreen>()
      .method<"bounds", &UIScreen::bounds>()
      .method<"nativeBounds", &UIScreen::nativeBounds>()
      .method<"scale", &UIScreen::scale>()
      .method<"nativeScale", &UIScreen::scale>()
      .finish();
}

}  // namespace sim
