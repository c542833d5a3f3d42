// PersistentConnection's one-shot timer, which on a phone wakes the processor to fire.
#pragma once

#include "objc/Class.h"
#include "simulator/machine/MainQueue.h"

namespace sim {

struct PCSimpleTimer : objc::Implementation<PCSimpleTimer> {
  double interval = 0;  // seconds, from scheduling
  objc::Strong<objc::Object> serviceIdentifier;
  objc::Strong<objc::Object> target;  // until fired or invalidated
  SEL selector = nullptr;
  objc::Strong<objc::Object> userInfo;
  // The NSTimer that will fire, or has fired: its fire date stays readable, in the past then.
  // nil before scheduling and after invalidation.
  objc::Strong<objc::Object> fireTimer;
  bool valid = false;

  objc::Object initWithTimeInterval_serviceIdentifier_target_selector_userInfo(
      double seconds, objc::Object service, objc::Object owner, SEL action, objc::Object info);
  // The run loop keeps a scheduled timer alive until it fires or is invalidated, so one that its
  // owner merely drops still fires.
  void scheduleInRunLoop(objc::Object runLoop);
  void invalidate();
  void fireTimerFired(objc::Object timer);

  static void registerClass();
};

}  // namespace sim
