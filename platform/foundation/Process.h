// What a process has: its bundle and files, settings, timers, threads and notifications.
#pragma once

#include <utility>

#include "objc/Block.h"
#include "platform/HostFunction.h"
#include "platform/foundation/Collection.h"

struct NSBundle : objc::Object {
  using Object::Object;
  static NSBundle bundleWithPath(NSString path) {  // nil when there is no such directory
    return objc::send<NSBundle, "bundleWithPath:">(objc::classNamed<"NSBundle">(), path);
  }
  // The layout's top-level objects. Raises when there is no such layout.
  NSArray loadNibNamed(NSString name, objc::Object owner) const {
    return objc::send<NSArray, "loadNibNamed:owner:options:">(*this, name, owner,
                                                              NSDictionary(nullptr));
  }
  NSString pathForResource(NSString name, NSString type) const {  // nil when it is missing
    return objc::send<NSString, "pathForResource:ofType:">(*this, name, type);
  }
  // A nil table is the default one, "Localizable".
  NSString localizedStringForKey(NSString key, NSString otherwise, NSString table) const {
    return objc::send<NSString, "localizedStringForKey:value:table:">(*this, key, otherwise, table);
  }
};

struct NSFileManager : objc::Object {
  using Object::Object;
  static NSFileManager defaultManager() {
    return objc::send<NSFileManager, "defaultManager">(objc::classNamed<"NSFileManager">());
  }
  bool fileExistsAtPath(NSString path) const {
    return objc::send<bool, "fileExistsAtPath:">(*this, path);
  }
};

struct NSUserDefaults : objc::Object {
  using Object::Object;
  // The host process's own.
  static NSUserDefaults standardUserDefaults() {
    return objc::send<NSUserDefaults, "standardUserDefaults">(objc::classNamed<"NSUserDefaults">());
  }
  objc::Object objectForKey(NSString key) const {
    return objc::send<objc::Object, "objectForKey:">(*this, key);
  }
  void setObject(objc::Object value, NSString key) const {
    objc::send<void, "setObject:forKey:">(*this, value, key);
  }
  void removeObject(NSString key) const { objc::send<void, "removeObjectForKey:">(*this, key); }
  bool synchronize() const { return objc::send<bool, "synchronize">(*this); }
};

struct NSTimer : objc::Object {
  using Object::Object;
  // Runs on the current run loop, which keeps it until it is invalidated.
  template <class Tick>
  static NSTimer scheduledTimer(double seconds, bool repeats, Tick tick) {
    auto block = objc::block<void(NSTimer)>([tick = std::move(tick)](NSTimer) { tick(); });
    return objc::send<NSTimer, "scheduledTimerWithTimeInterval:repeats:block:">(
        objc::classNamed<"NSTimer">(), seconds, repeats, block.get());
  }
  void invalidate() const { objc::send<void, "invalidate">(*this); }
  NSDate fireDate() const { return objc::send<NSDate, "fireDate">(*this); }
};

struct NSRunLoop : objc::Object {
  using Object::Object;
  static NSRunLoop mainRunLoop() {
    return objc::send<NSRunLoop, "mainRunLoop">(objc::classNamed<"NSRunLoop">());
  }
  // Every mode in which the user may be touching something.
  static NSString commonModes() {
    return NSString(platform::hostConstant<"NSRunLoopCommonModes", id>());
  }
  void addTimer(NSTimer timer, NSString mode) const {
    objc::send<void, "addTimer:forMode:">(*this, timer, mode);
  }
};

struct NSThread : objc::Object {
  using Object::Object;
  static bool isMainThread() {
    return objc::send<bool, "isMainThread">(objc::classNamed<"NSThread">());
  }
};

struct NSProcessInfo : objc::Object {
  using Object::Object;
  static NSProcessInfo processInfo() {
    return objc::send<NSProcessInfo, "processInfo">(objc::classNamed<"NSProcessInfo">());
  }
  NSString processName() const { return objc::send<NSString, "processName">(*this); }
};

struct NSNotificationCenter : objc::Object {
  using Object::Object;
  static NSNotificationCenter defaultCenter() {
    return objc::send<NSNotificationCenter, "defaultCenter">(
        objc::classNamed<"NSNotificationCenter">());
  }
  // The observer is not retained. A nil sender means any. A nil name, of a notification that this
  // host does not have, registers nothing: the host would take it for every notification there is.
  void addObserver(objc::Object observer, SEL selector, NSString name, objc::Object sender) const {
    if (!name) return;
    objc::send<void, "addObserver:selector:name:object:">(*this, observer, selector, name, sender);
  }
  // By identity alone: the observer may be gone already.
  void removeObserver(objc::Object observer) const {
    objc::send<void, "removeObserver:">(*this, observer);
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
