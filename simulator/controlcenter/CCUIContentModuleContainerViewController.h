// ControlCenterUI: the frame around one module, which grows when the user presses the module.
#pragma once

#include "objc/Class.h"

namespace sim {

struct CCUIContentModuleContainerViewController
    : objc::Implementation<CCUIContentModuleContainerViewController> {
  objc::Strong<objc::Object> moduleIdentifier;  // NSString
  objc::Strong<objc::Object> contentModule;
  bool expanded = false;

  objc::Object initWithModuleIdentifier_contentModule(objc::Object identifier, objc::Object module);

  static void registerClass();
};

}  // namespace sim
