#pragma once

#include "objc/Block.h"
#include "objc/Class.h"
#include "simulator/machine/MainQueue.h"
#include "simulator/machine/RunLoopMode.h"

namespace sim {

using TimerBlock = objc::Block<void(objc::Object)>;

// A timer of the main run loop: an entry of the main queue, which keeps the object alive.
struct NSTimer : objc::Implementation<NSTimer> {
  Nanoseconds due = 0;       // uptime
  Nanoseconds interval = 0;  // 0: fires once
  MainQueue::Ticket ticket = 0;
  RunLoopModes modes;
  bool valid = false;
  objc::Strong<objc::Object> target;  // retained until the timer is invalidated
  SEL selector = nullptr;
  objc::Strong<objc::Object> userInfo;
  objc::Strong<TimerBlock> block;

  objc::Object initWithFireDate(objc::Object date, double seconds, objc::Object itsTarget,
                                SEL itsSelector, objc::Object info, bool repeats);
  objc::Object initWithBlock(objc::Object date, double seconds, bool repeats, TimerBlock itsBlock);
  // In these modes, and in those that it runs in already.
  void scheduleIn(RunLoopModes added);
  void fire();
  void invalidate();
  objc::Object fireDate() const;
  void setFireDate(objc::Object date);
  double timeInterval() const { return seconds(interval); }

  static void registerClass();

 private:
  void schedule();  // does nothing when it is scheduled, invalid or in no mode
  void begin(Nanoseconds firstDue, double seconds, bool repeats);
  void tick();
  void call();
};

}  // namespace sim
