#include "simulator/uikit/UIScreen.h"

#include "simulator/StandIn.h"

namespace sim {

objc::Object UIScreen::mainScreen() {
  return objc::Object(shared().self());
}

void UIScreen::registerClass() {
  StandIn<UIScreen>("UIKit", "UIScreen", "NSObject")
      .classMethod<"mainScreen", &UIScreen::mainScreen>()
      .partial<"bounds", &UIScreen::bounds>("always upright")
      .method<"nativeBounds", &UIScreen::nativeBounds>()
      .method<"scale", &UIScreen::scale>()
      .method<"nativeScale", &UIScreen::scale>()
      .finish();
}

}  // namespace sim
