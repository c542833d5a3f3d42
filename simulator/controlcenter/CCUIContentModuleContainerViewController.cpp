#include "simulator/controlcenter/CCUIContentModuleContainerViewController.h"

#include "simulator/StandIn.h"

namespace sim {

objc::Object CCUIContentModuleContainerViewController::initWithModuleIdentifier_contentModule(
    objc::Object identifier, objc::Object module) {
  moduleIdentifier = objc::adopt(objc::send<objc::Object, "copy">(identifier));
  contentModule = objc::retain(module);
  return super<objc::Object, "initWithNibName:bundle:">(objc::Object(), objc::Object());
}

void CCUIContentModuleContainerViewController::registerClass() {
  using Container = CCUIContentModuleContainerViewController;
  StandIn<Container>("ControlCenterUI", "CCUIContentModuleContainerViewController",
                     "UIViewController")
      .partial<"initWithModuleIdentifier:contentModule:",
               &Container::initWithModuleIdentifier_contentModule>("the module is not shown")
      .readonlyProperty<"moduleIdentifier", &Container::moduleIdentifier>()
      .readonlyProperty<"contentModule", &Container::contentModule>()
      .property<"expanded", &Container::expanded>()
      .readonlyProperty<"isExpanded", &Container::expanded>()
      .finish();
}

}  // namespace sim
