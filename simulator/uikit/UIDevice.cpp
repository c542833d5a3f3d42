#include "simulator/uikit/UIDevice.h"

#include "simulator/StandIn.h"
#include "simulator/foundation/Values.h"
#include "simulator/phone/Phone.h"

namespace sim {

objc::Object UIDevice::currentDevice() {
  return objc::Object(shared().self());
}

objc::Object UIDevice::systemVersion() {
  return string(Phone::current().setup.systemVersion);
}

void UIDevice::registerClass() {
  StandIn<UIDevice>("UIKit", "UIDevice", "NSObject")
      .classMethod<"currentDevice", &UIDevice::currentDevice>()
      .method<"systemVersion", &UIDevice::systemVersion>()
      .partial<"_feedbackSupportLevel", &UIDevice::feedbackSupportLevel>("always 2")
      .finish();
}

}  // namespace sim
