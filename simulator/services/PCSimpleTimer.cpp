#include "simulator/services/PCSimpleTimer.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

#include "simulator/foundation/Deadline.h"
#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/machine/WallClock.h"
#include "simulator/services/PCDispatchTimer.h"
#include "simulator/standin/StandIn.h"
#include "simulator/standin/Versions.h"

namespace sim {
namespace {

using objc::Object;

struct ScheduledTimers {
  std::vector<PCSimpleTimer*> all;
};

std::vector<PCSimpleTimer*>& scheduledTimers() {
  return Phone::current().state<ScheduledTimers>().all;
}

void perform(Object target, SEL selector, Object timer) {
  const bool takesTimer = std::strchr(sel_getName(selector), ':') != nullptr;
  if (takesTimer)
    objc::send<Object, "performSelector:withObject:">(target, selector, timer);
  else
    objc::send<Object, "performSelector:">(target, selector);
}

objc::Strong<Object> dispatchTimer(double moment) {
  if (PCDispatchTimer::cls() == nullptr) return {};
  auto made = PCDispatchTimer::make();
  PCDispatchTimer::of(made.get()).fireDate = objc::retain(date(moment));
  return made;
}

}  // namespace

Object PCSimpleTimer::initWithTimeInterval_serviceIdentifier_target_selector_userInfo(
    double seconds, Object service, Object owner, SEL action, Object info) {
  const Clock& clock = Phone::current().clock;
  moment_ = clock.wall() + seconds;
  due_ = deadline(clock.uptime(), nanoseconds(seconds));
  serviceIdentifier = objc::adopt(objc::send<Object, "copy">(service));
  target = objc::retain(owner);
  selector = action;
  userInfo = objc::retain(info);
  valid = true;
  return Object(self());
}

void PCSimpleTimer::scheduleInRunLoop(Object) {
  if (!valid)
    raiseException("NSInternalInconsistencyException", "a PCSimpleTimer is scheduled only once");
  if (ticket_ != 0) return;
  Phone::current().journal.record("-[PCSimpleTimer scheduleInRunLoop:]");
  fireTimer = dispatchTimer(moment_);
  scheduledTimers().push_back(this);
  arm();
}

// The entry keeps the timer alive, the one of before until there is another.
void PCSimpleTimer::arm() {
  MainQueue& queue = Phone::current().queue;
  const MainQueue::Ticket before = ticket_;
  ticket_ = queue.add(due_, [timer = objc::retain(Object(self()))] { of(timer.get()).fire(); });
  queue.cancel(before);
}

void PCSimpleTimer::stop() {
  valid = false;
  std::erase(scheduledTimers(), this);
  Phone::current().queue.cancel(std::exchange(ticket_, 0));
}

// Journals only what had an effect: invalidating twice is invalidating once.
void PCSimpleTimer::invalidate() {
  if (!valid) return;
  Phone::current().journal.record("-[PCSimpleTimer invalidate]");
  const auto alive = objc::retain(Object(self()));  // the entry may hold the last reference
  stop();
  fireTimer = nullptr;
  target = nullptr;
}

// All of its own is over when the run loop comes to calling the target.
void PCSimpleTimer::fire() {
  Phone::current().journal.record("-[PCSimpleTimer fire] " + notation(serviceIdentifier.get()));
  stop();
  constexpr int withoutIts = 16;
  if (systemMajor() >= withoutIts) fireTimer = nullptr;
  Phone::current().queue.addNow([timer = objc::retain(Object(self())), action = selector,
                                 receiver = std::exchange(target, nullptr)] {
    perform(receiver.get(), action, timer.get());
  });
}

// All here are made with an interval: a clock that goes back by more than a minute fires them at
// once. Otherwise the moment stays.
void PCSimpleTimer::wallClockMoved(double distance) {
  constexpr double tooFarBack = -60;  // seconds
  const Clock& clock = Phone::current().clock;
  for (PCSimpleTimer* timer : scheduledTimers()) {
    timer->due_ = distance < tooFarBack ? clock.uptime() : uptimeAt(clock, timer->moment_);
    timer->arm();
  }
}

std::optional<Nanoseconds> PCSimpleTimer::firstDue(std::string_view service) {
  std::optional<Nanoseconds> first;
  for (const PCSimpleTimer* timer : scheduledTimers())
    if (isKindOf(timer->serviceIdentifier.get(), "NSString") &&
        text(timer->serviceIdentifier.get()) == service)
      first = std::min(timer->due_, first.value_or(timer->due_));
  return first;
}

void PCSimpleTimer::registerClass() {
  StandIn<PCSimpleTimer>("PersistentConnection", "PCSimpleTimer", "NSObject")
      .method<"initWithTimeInterval:serviceIdentifier:target:selector:userInfo:",
              &PCSimpleTimer::initWithTimeInterval_serviceIdentifier_target_selector_userInfo>()
      .partial<"scheduleInRunLoop:", &PCSimpleTimer::scheduleInRunLoop>(
          "the phone never sleeps, so nothing is woken")
      .method<"invalidate", &PCSimpleTimer::invalidate>()
      .readonlyProperty<"isValid", &PCSimpleTimer::valid>()
      .readonlyProperty<"userInfo", &PCSimpleTimer::userInfo>()
      .readonlyProperty<"_fireTimer", &PCSimpleTimer::fireTimer>()
      .finish();
  onWallClockMove(&PCSimpleTimer::wallClockMoved);
}

}  // namespace sim
