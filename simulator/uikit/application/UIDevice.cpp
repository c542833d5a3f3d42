#include "simulator/uikit/application/UIDevice.h"

#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {

objc::Object UIDevice::currentDevice() {
  return objc::Object(shared().self());
}

objc::Object UIDevice::systemVersion() {
  return string(Phone::current().setup.systemVersion);
}

long UIDevice::feedbackSupportLevel() {
  return Phone::current().setup.feedbackSupportLevel;
}

void UIDevice::registerClass() {
  StandIn<UIDevice>("UIKit", "UIDevice", "NSObject")
      .classMethod<"currentDevice", &UIDevice::currentDevice>()
      .method<"systemVersion", &UIDevice::systemVersion>()
      .method<"_feedbackSupportLevel", &UIDevice::feedbackSupportLevel>()
      .finish();
}

}  // namespace sim
