// DoNotDisturb: a mode that somebody has switched on.
#pragma once

#include "objc/Class.h"

namespace sim {

struct DNDModeAssertion : objc::Implementation<DNDModeAssertion> {
  objc::Strong<objc::Object> details;    // DNDModeAssertionDetails
  objc::Strong<objc::Object> startDate;  // NSDate

  // Autoreleased, from now on; nil when the class is missing.
  static objc::Object withDetails(objc::Object details);

  static void registerClass();
};

}  // namespace sim
