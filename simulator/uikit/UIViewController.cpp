#include "simulator/uikit/UIViewController.h"

#include "simulator/StandIn.h"

namespace sim {

objc::Object UIViewController::init() {
  return objc::send<objc::Object, "initWithNibName:bundle:">(self(), nullptr, nullptr);
}

objc::Object UIViewController::initWithNibName_bundle(objc::Object name, objc::Object bundle) {
  nibName = objc::adopt(objc::send<objc::Object, "copy">(name));
  nibBundle = objc::retain(bundle);
  return super<objc::Object, "init">();
}

void UIViewController::registerClass() {
  StandIn<UIViewController>("UIKit", "UIViewController", "UIResponder")
      .method<"init", &UIViewController::init>()
      .partial<"initWithNibName:bundle:", &UIViewController::initWithNibName_bundle>(
          "loads no layout")
      .readonlyProperty<"nibName", &UIViewController::nibName>()
      .readonlyProperty<"nibBundle", &UIViewController::nibBundle>()
      .finish();
}

}  // namespace sim
