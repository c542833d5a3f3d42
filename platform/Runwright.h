// The shortcut runner: an optional library that runs the user's shortcuts by name.
#pragma once

#include "platform/Foundation.h"

struct RunwrightManager : objc::Object {
  using Object::Object;
  static Class cls() { return objc::classNamed<"RunwrightManager">(); }
  static bool isInstalled() { return cls() != nullptr; }
  static RunwrightManager sharedManager() {  // nil when the library is not installed
    return objc::send<RunwrightManager, "sharedManager">(cls());
  }
  NSArray workflowNames() const { return objc::send<NSArray, "workflowNames">(*this); }
  void runWorkflowWithName(NSString name) const {
    objc::send<void, "runWorkflowWithName:">(*this, name);
  }
};
