// Do Not Disturb, in both generations: DoNotDisturb's assertions and the older BulletinBoard
// switch (all private).
#pragma once

#include "platform/Foundation.h"

struct DNDModeAssertionDetails : objc::Object {
  using Object::Object;
  // A nil lifetime lasts until the user ends it.
  static DNDModeAssertionDetails userRequested(NSString identifier, NSString mode,
                                               objc::Object lifetime) {
    return objc::send<DNDModeAssertionDetails,
                      "userRequestedAssertionDetailsWithIdentifier:modeIdentifier:lifetime:">(
        objc::classNamed<"DNDModeAssertionDetails">(), identifier, mode, lifetime);
  }
};

struct DNDModeAssertionService : objc::Object {
  using Object::Object;
  // nil on systems without assertions.
  static DNDModeAssertionService serviceForClientIdentifier(NSString client) {
    return objc::send<DNDModeAssertionService, "serviceForClientIdentifier:">(
        objc::classNamed<"DNDModeAssertionService">(), client);
  }
  // The assertion; nil if it was refused. `error` may be null.
  objc::Object takeModeAssertionWithDetails(DNDModeAssertionDetails details, id* error) const {
    return objc::send<objc::Object, "takeModeAssertionWithDetails:error:">(*this, details, error);
  }
};

struct BBSettingsGateway : objc::Object {
  using Object::Object;
  static objc::Strong<BBSettingsGateway> make() {
    return objc::adopt(BBSettingsGateway(objc_alloc_init(objc::classNamed<"BBSettingsGateway">())));
  }
  // Before iOS 15 only.
  bool canSetBehaviorOverrideStatus() const {
    return objc::respondsTo<"setBehaviorOverrideStatus:">(*this);
  }
  // 1: on.
  void setBehaviorOverrideStatus(long status) const {
    objc::send<void, "setBehaviorOverrideStatus:">(*this, status);
  }
};
