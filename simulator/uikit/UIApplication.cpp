#include "simulator/uikit/UIApplication.h"

#include "simulator/StandIn.h"

namespace sim {
namespace {

objc::Object theApplication;  // owned, and never given up

}  // namespace

objc::Object UIApplication::sharedApplication() {
  return theApplication;
}

objc::Object UIApplication::init() {
  const objc::Object made = super<objc::Object, "init">();
  if (!theApplication) theApplication = objc::retain(made).detach();
  return made;
}

void UIApplication::registerClass() {
  StandIn<UIApplication>("UIKit", "UIApplication", "UIResponder")
      .classMethod<"sharedApplication", &UIApplication::sharedApplication>()
      .partial<"init", &UIApplication::init>("a second application is no error")
      .partial<"delegate", &UIApplication::delegate>("always nil")
      .finish();
}

}  // namespace sim
