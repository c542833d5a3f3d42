#include "simulator/controlcenter/ControlCenter.h"

#include <map>

#include "objc/Message.h"
#include "simulator/Frameworks.h"
#include "simulator/controlcenter/CCUIContentModuleContainerViewController.h"
#include "simulator/foundation/Values.h"

namespace sim {

void registerControlCenter() {
  CCUIContentModuleContainerViewController::registerClass();
}

objc::Object moduleContainer(const std::string& identifier) {
  static std::map<std::string, objc::Object> containers;  // owned, and never given up
  Class cls = CCUIContentModuleContainerViewController::cls();
  if (cls == nullptr) return nullptr;
  objc::Object& container = containers[identifier];
  if (!container)
    container = objc::send<objc::Object, "initWithModuleIdentifier:contentModule:">(
        objc_alloc(cls), string(identifier), nullptr);
  return container;
}

}  // namespace sim
