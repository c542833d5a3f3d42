// The shortcut runner: runs the user's shortcuts by name.
#pragma once

#include "objc/Class.h"

namespace sim {

struct RunwrightManager : objc::Implementation<RunwrightManager> {
  static objc::Object sharedManager();

  objc::Object workflowNames();  // NSArray of NSString
  void runWorkflowWithName(objc::Object name);

  // Only where the library is installed.
  static void registerClass();
};

}  // namespace sim
