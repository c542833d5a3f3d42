// Foundation. Every result that is not marked otherwise is +0 (autoreleased).
#pragma once

#include "objc/Message.h"
#include "objc/Ownership.h"
#include "platform/HostFunction.h"

struct NSString : objc::Object {
  using Object::Object;
  static NSString string(const char* utf8) {
    return objc::send<NSString, "stringWithUTF8String:">(objc_getClass("NSString"), utf8);
  }
  const char* UTF8String() const { return objc::send<const char*, "UTF8String">(*this); }
  bool isEqualToString(NSString other) const {
    return objc::send<bool, "isEqualToString:">(*this, other);
  }
  float floatValue() const { return objc::send<float, "floatValue">(*this); }
};

// A string literal as the platform's string, made when it is needed: constant strings cannot be
// linked into the extension (their isa would have to be signed).
inline NSString operator""_ns(const char* text, std::size_t) {
  return NSString::string(text);
}

struct NSMutableString : NSString {
  using NSString::NSString;
  static NSMutableString string() {
    return objc::send<NSMutableString, "string">(objc_getClass("NSMutableString"));
  }
  void appendString(NSString text) const { objc::send<void, "appendString:">(*this, text); }
};

struct NSObject : objc::Object {
  using Object::Object;
  NSString description() const { return objc::send<NSString, "description">(*this); }
  // Raises for an unknown key, which ends the host.
  objc::Object valueForKey(NSString key) const {
    return objc::send<objc::Object, "valueForKey:">(*this, key);
  }
  // nil for an unknown key (the accessibility frameworks' variant).
  objc::Object safeValueForKey(NSString key) const {
    return objc::send<objc::Object, "safeValueForKey:">(*this, key);
  }
};

struct NSNumber : objc::Object {
  using Object::Object;
  static NSNumber numberWithInteger(long value) {
    return objc::send<NSNumber, "numberWithInteger:">(objc_getClass("NSNumber"), value);
  }
  long integerValue() const { return objc::send<long, "integerValue">(*this); }
};

struct NSDate : objc::Object {
  using Object::Object;
  double timeIntervalSinceNow() const {  // seconds; negative in the past; 0 for nil
    return objc::send<double, "timeIntervalSinceNow">(*this);
  }
};

struct NSDictionary : objc::Object {
  using Object::Object;
  static NSDictionary dictionary() {
    return objc::send<NSDictionary, "dictionary">(objc_getClass("NSDictionary"));
  }
};

struct NSTimer : objc::Object {
  using Object::Object;
  NSDate fireDate() const { return objc::send<NSDate, "fireDate">(*this); }
};

struct NSRunLoop : objc::Object {
  using Object::Object;
  static NSRunLoop mainRunLoop() {
    return objc::send<NSRunLoop, "mainRunLoop">(objc_getClass("NSRunLoop"));
  }
};

struct NSThread : objc::Object {
  using Object::Object;
  static bool isMainThread() { return objc::send<bool, "isMainThread">(objc_getClass("NSThread")); }
};

struct NSProcessInfo : objc::Object {
  using Object::Object;
  static NSProcessInfo processInfo() {
    return objc::send<NSProcessInfo, "processInfo">(objc_getClass("NSProcessInfo"));
  }
  NSString processName() const { return objc::send<NSString, "processName">(*this); }
};

struct NSNotificationCenter : objc::Object {
  using Object::Object;
  static NSNotificationCenter defaultCenter() {
    return objc::send<NSNotificationCenter, "defaultCenter">(objc_getClass("NSNotificationCenter"));
  }
  // The observer is not retained. A nil sender means any.
  void addObserver(objc::Object observer, SEL selector, NSString name, objc::Object sender) const {
    objc::send<void, "addObserver:selector:name:object:">(*this, observer, selector, name, sender);
  }
  // No user info.
  void postNotificationName(NSString name, objc::Object sender) const {
    objc::send<void, "postNotificationName:object:">(*this, name, sender);
  }
};

// Writes one line to the system log.
inline void NSLog(NSString line) {
  if (auto* log = platform::hostFunction<"NSLog", void(id, ...)>())
    log(NSString::string("%@").get(), line.get());
}
