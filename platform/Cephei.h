// Cephei: a preferences domain whose values are bound to variables.
//
// Each register call binds one key to an address, writes the stored value or the default there at
// once, and again on every later change of the domain, on the main thread. The address must stay
// valid as long as the process. Values of another type are converted by their own boolValue,
// integerValue or doubleValue; what answers none of these reads as 0 or NO.
#pragma once

#include "platform/Foundation.h"

struct HBPreferences : objc::Object {
  using Object::Object;
  static bool isInstalled() { return objc::classNamed<"HBPreferences">() != nullptr; }
  // One object per identifier and process. nil when the library is not installed.
  static objc::Strong<HBPreferences> make(NSString identifier) {
    return objc::adopt(objc::send<HBPreferences, "initWithIdentifier:">(
        objc_alloc(objc::classNamed<"HBPreferences">()), identifier));
  }
  bool boolForKey(NSString key) const { return objc::send<bool, "boolForKey:">(*this, key); }
  void setBool(bool value, NSString key) const {
    objc::send<void, "setBool:forKey:">(*this, value, key);
  }
  void registerBool(bool* value, bool otherwise, NSString key) const {
    objc::send<void, "registerBool:default:forKey:">(*this, value, otherwise, key);
  }
  void registerInteger(long* value, long otherwise, NSString key) const {
    objc::send<void, "registerInteger:default:forKey:">(*this, value, otherwise, key);
  }
  void registerFloat(double* value, double otherwise, NSString key) const {  // CGFloat
    objc::send<void, "registerFloat:default:forKey:">(*this, value, otherwise, key);
  }
  // The slot holds a strong reference: nil or a retained object before, and after every change.
  void registerObject(id* value, objc::Object otherwise, NSString key) const {
    objc::send<void, "registerObject:default:forKey:">(*this, value, otherwise, key);
  }
};
