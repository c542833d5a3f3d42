// PersistentConnection's one-shot timer, which on a phone wakes the processor to fire. It goes by
// the wall clock: its moment is fixed when it is made.
#pragma once

#include <optional>
#include <string_view>

#include "objc/Class.h"
#include "simulator/machine/MainQueue.h"

namespace sim {

struct PCSimpleTimer : objc::Implementation<PCSimpleTimer> {
  objc::Strong<objc::Object> serviceIdentifier;
  objc::Strong<objc::Object> target;  // until fired or invalidated
  SEL selector = nullptr;
  objc::Strong<objc::Object> userInfo;
  // A PCDispatchTimer from scheduling to firing or invalidation; before iOS 16 one that has fired
  // stays, and its date is past then.
  objc::Strong<objc::Object> fireTimer;
  bool valid = false;

  objc::Object initWithTimeInterval_serviceIdentifier_target_selector_userInfo(
      double seconds, objc::Object service, objc::Object owner, SEL action, objc::Object info);
  // A scheduled timer lives until it fires or is invalidated, so one that its owner merely drops
  // still fires. Raises for one that has.
  void scheduleInRunLoop(objc::Object runLoop);
  void invalidate();

  // When the next one of that service fires; nothing when none is scheduled.
  static std::optional<Nanoseconds> firstDue(std::string_view service);

  static void registerClass();

 private:
  static void wallClockMoved(double distance);
  void arm();
  void stop();
  void fire();

  double moment_ = 0;    // seconds since the reference date
  Nanoseconds due_ = 0;  // uptime, as the clock goes
  MainQueue::Ticket ticket_ = 0;
};

}  // namespace sim
