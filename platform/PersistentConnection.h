// PersistentConnection (private): timers that wake a sleeping phone.
#pragma once

#include "platform/Foundation.h"

struct PCSimpleTimer : NSObject {
  using NSObject::NSObject;

  // One shot, `seconds` of the wall clock after it is made. Calls `selector` on `target`, which it
  // keeps, on the run loop it is scheduled in. The identifier names who woke the phone.
  static objc::Strong<PCSimpleTimer> make(double seconds, NSString serviceIdentifier,
                                          objc::Object target, SEL selector,
                                          objc::Object userInfo) {
    return objc::adopt(
        objc::send<PCSimpleTimer, "initWithTimeInterval:serviceIdentifier:target:selector:"
                                  "userInfo:">(objc_alloc(objc::classNamed<"PCSimpleTimer">()),
                                               seconds, serviceIdentifier, target, selector,
                                               userInfo));
  }
  void scheduleInRunLoop(NSRunLoop runLoop) const {
    objc::send<void, "scheduleInRunLoop:">(*this, runLoop);
  }
  void invalidate() const { objc::send<void, "invalidate">(*this); }
  // The run-loop timer inside; its fire date is the moment this timer fires.
  NSTimer fireTimer() const { return objc::as<NSTimer>(valueForKey("_fireTimer"_ns)); }
};
