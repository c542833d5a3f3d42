// DoNotDisturb: what is asked for when a mode is switched on.
#pragma once

#include "objc/Class.h"

namespace sim {

struct DNDModeAssertionDetails : objc::Implementation<DNDModeAssertionDetails> {
  objc::Strong<objc::Object> identifier;      // NSString
  objc::Strong<objc::Object> modeIdentifier;  // NSString
  objc::Strong<objc::Object> lifetime;        // nil: until the user ends it

  static objc::Object userRequestedWithIdentifier_mode_lifetime(objc::Object identifier,
                                                                objc::Object modeIdentifier,
                                                                objc::Object lifetime);

  static void registerClass();
};

}  // namespace sim
