#include "simulator/foundation/NSTimer.h"

#include <algorithm>
#include <cmath>

#include "simulator/foundation/Deadline.h"
#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSDate.h"
#include "simulator/foundation/NSRunLoop.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/runtime/Send.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

// The platform's replacement for intervals that are not positive.
double usable(double seconds) {
  return seconds > 0 ? seconds : 0.0001;
}

Nanoseconds fromNow(double seconds) {
  return deadline(Phone::current().clock.uptime(), nanoseconds(usable(seconds)));
}

Nanoseconds uptimeOf(Object date) {
  const NSDate* state = stateOf<NSDate>(date);
  if (state == nullptr)
    raiseException("NSInvalidArgumentException", "a timer needs a date to fire at");
  return uptimeAt(Phone::current().clock, state->reference);
}

Strong<Object> make(double seconds, Object target, SEL selector, Object info, bool repeats) {
  Strong<Object> made = NSTimer::make();
  NSTimer& timer = NSTimer::of(made.get());
  timer.initWithFireDate(date(0), seconds, target, selector, info, repeats);
  timer.due = fromNow(seconds);
  return made;
}

Strong<Object> makeWithBlock(double seconds, bool repeats, TimerBlock block) {
  Strong<Object> made = NSTimer::make();
  NSTimer& timer = NSTimer::of(made.get());
  timer.initWithBlock(date(0), seconds, repeats, block);
  timer.due = fromNow(seconds);
  return made;
}

Object timer(double seconds, Object target, SEL selector, Object info, bool repeats) {
  return autorelease(make(seconds, target, selector, info, repeats));
}
Object timerWithBlock(double seconds, bool repeats, TimerBlock block) {
  return autorelease(makeWithBlock(seconds, repeats, block));
}
Object scheduled(Strong<Object> made) {
  NSTimer::of(made.get()).scheduleIn({.inDefault = true});
  return autorelease(std::move(made));
}
Object scheduledTimer(double seconds, Object target, SEL selector, Object info, bool repeats) {
  return scheduled(make(seconds, target, selector, info, repeats));
}
Object scheduledTimerWithBlock(double seconds, bool repeats, TimerBlock block) {
  return scheduled(makeWithBlock(seconds, repeats, block));
}

bool isValid(Object self) {
  return NSTimer::of(self).valid;
}

}  // namespace

void NSTimer::begin(Nanoseconds firstDue, double seconds, bool repeats) {
  due = firstDue;
  interval = repeats ? std::max<Nanoseconds>(nanoseconds(usable(seconds)), 1) : 0;
  valid = true;
}

Object NSTimer::initWithFireDate(Object date, double seconds, Object itsTarget, SEL itsSelector,
                                 Object info, bool repeats) {
  begin(uptimeOf(date), seconds, repeats);
  target = objc::retain(itsTarget);
  selector = itsSelector;
  userInfo = objc::retain(info);
  return Object(self());
}

Object NSTimer::initWithBlock(Object date, double seconds, bool repeats, TimerBlock itsBlock) {
  begin(uptimeOf(date), seconds, repeats);
  block = objc::adopt(objc::send<TimerBlock, "copy">(itsBlock));
  return Object(self());
}

void NSTimer::scheduleIn(RunLoopModes added) {
  modes = joined(modes, added);
  schedule();
}

void NSTimer::schedule() {
  if (!valid || ticket != 0 || (!modes.inDefault && !modes.inTracking)) return;
  ticket = Phone::current().queue.add(due, [timer = objc::retain(Object(self()))] {
    NSTimer& state = of(timer.get());
    state.ticket = 0;
    if (state.modes.holdNow()) return state.tick();
    whenModeChanges([timer] { of(timer.get()).schedule(); });
  });
}

void NSTimer::tick() {
  const Nanoseconds fired = due;
  call();
  if (!valid) return;
  if (interval == 0) return invalidate();
  // A new fire date set meanwhile counts. Otherwise the next one is a whole number of intervals
  // after the first, so that it does not drift; those missed are left out.
  if (due == fired) {
    const Nanoseconds late = std::max<Nanoseconds>(Phone::current().clock.uptime() - due, 0);
    due = deadline(due + late / interval * interval, interval);
  }
  schedule();
}

void NSTimer::call() {
  const Strong<Object> keep = objc::retain(Object(self()));
  if (block) {
    const Strong<TimerBlock> running = block;
    running.get()(keep);
  } else {
    const Strong<Object> receiver = target;
    sim::runtime::send<void>(receiver.get().get(), selector, self());
  }
}

void NSTimer::fire() {
  if (!valid) return;
  const Strong<Object> keep = objc::retain(Object(self()));
  call();
  if (valid && interval == 0) invalidate();
}

void NSTimer::invalidate() {
  const Strong<Object> keep = objc::retain(Object(self()));
  valid = false;
  if (ticket != 0) Phone::current().queue.cancel(std::exchange(ticket, 0));
  target = nullptr;
  userInfo = nullptr;
  block = nullptr;
}

Object NSTimer::fireDate() const {
  const Clock& clock = Phone::current().clock;
  return date(clock.wall() + seconds(due - clock.uptime()));
}

void NSTimer::setFireDate(Object date) {
  if (!valid) return;
  const Strong<Object> keep = objc::retain(Object(self()));
  due = uptimeOf(date);
  if (ticket == 0) return;
  Phone::current().queue.cancel(std::exchange(ticket, 0));
  schedule();
}

void NSTimer::registerClass() {
  StandIn<NSTimer>("Foundation", "NSTimer", "NSObject")
      .classMethod<"timerWithTimeInterval:target:selector:userInfo:repeats:", &timer>()
      .classMethod<"timerWithTimeInterval:repeats:block:", &timerWithBlock>()
      .partialClassMethod<"scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:",
                          &scheduledTimer>("always on the main run loop")
      .partialClassMethod<"scheduledTimerWithTimeInterval:repeats:block:",
                          &scheduledTimerWithBlock>("always on the main run loop")
      .method<"initWithFireDate:interval:target:selector:userInfo:repeats:",
              &NSTimer::initWithFireDate>()
      .method<"initWithFireDate:interval:repeats:block:", &NSTimer::initWithBlock>()
      .method<"fire", &NSTimer::fire>()
      .method<"invalidate", &NSTimer::invalidate>()
      .method<"isValid", &isValid>()
      .method<"fireDate", &NSTimer::fireDate>()
      .method<"setFireDate:", &NSTimer::setFireDate>()
      .method<"timeInterval", &NSTimer::timeInterval>()
      .readonlyProperty<"userInfo", &NSTimer::userInfo>()
      .finish();
}

}  // namespace sim
