#include "simulator/foundation/DelayedPerforms.h"

#include <algorithm>
#include <list>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSArray.h"
#include "simulator/foundation/NSObject.h"
#include "simulator/foundation/NSRunLoop.h"
#include "simulator/foundation/NSThread.h"
#include "simulator/machine/Phone.h"
#include "simulator/machine/WorkerThread.h"
#include "simulator/runtime/Send.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

struct Perform {
  Strong<Object> target;
  SEL selector;
  Strong<Object> argument;
  RunLoopModes modes;
  MainQueue::Ticket ticket;
};

struct PendingPerforms {
  std::list<Perform> all;
};

std::list<Perform>& pending() {
  return Phone::current().state<PendingPerforms>().all;
}

void perform(Object target, SEL selector, Object argument) {
  sim::runtime::send<void>(target.get(), selector, argument.get());
}

void addToQueue(std::list<Perform>::iterator entry, Nanoseconds due);

// Nobody has cancelled it meanwhile, if it is still there.
void addAgain(MainQueue::Ticket ticket) {
  for (auto entry = pending().begin(); entry != pending().end(); ++entry)
    if (entry->ticket == ticket) return addToQueue(entry, Phone::current().clock.uptime());
}

void addToQueue(std::list<Perform>::iterator entry, Nanoseconds due) {
  entry->ticket = Phone::current().queue.add(due, [entry] {
    if (!entry->modes.holdNow())
      return whenModeChanges([ticket = entry->ticket] { addAgain(ticket); });
    std::list<Perform> running;
    running.splice(running.begin(), pending(), entry);
    const Perform& now = running.front();
    perform(now.target, now.selector, now.argument);
  });
}

void add(Object self, SEL selector, Object argument, double delay, RunLoopModes modes) {
  pending().push_back({objc::retain(self), selector, objc::retain(argument), modes, 0});
  addToQueue(std::prev(pending().end()),
             deadline(Phone::current().clock.uptime(), nanoseconds(delay)));
}

void performAfterDelay(Object self, SEL selector, Object argument, double delay) {
  add(self, selector, argument, delay, {.inDefault = true});
}

void performInModes(Object self, SEL selector, Object argument, double delay, Object names) {
  RunLoopModes modes;
  if (const NSArray* list = stateOf<NSArray>(names))
    for (const auto& name : list->elements) modes = joined(modes, modesNamed(name));
  add(self, selector, argument, delay, modes);
}

template <class Matches>
void cancel(Matches matches) {
  std::list<Perform> cancelled;  // released once the list is whole again
  for (auto entry = pending().begin(); entry != pending().end();) {
    const auto current = entry++;
    if (!matches(*current)) continue;
    Phone::current().queue.cancel(current->ticket);
    cancelled.splice(cancelled.end(), pending(), current);
  }
}

void cancelAll(Object target) {
  cancel([target](const Perform& entry) { return entry.target.get() == target; });
}

void cancelMatching(Object target, SEL selector, Object argument) {
  cancel([=](const Perform& entry) {
    const Object its = entry.argument;
    return entry.target.get() == target && sel_isEqual(entry.selector, selector) &&
           (its == argument || objc::send<bool, "isEqual:">(its, argument));
  });
}

void performOnMainThread(Object self, SEL selector, Object argument, bool wait) {
  if (wait && isMainThread()) return perform(self, selector, argument);
  // The main thread waits for every other thread: it is free to do this at once.
  if (wait) return runOnMainThread([=] { perform(self, selector, argument); });
  Phone::current().queue.addNow(
      [target = objc::retain(self), selector, kept = objc::retain(argument)] {
        perform(target, selector, kept);
      });
}

}  // namespace

void addDelayedPerforms() {
  addToRootClass<"performSelector:withObject:afterDelay:", &performAfterDelay>(
      "always on the main run loop");
  addToRootClass<"performSelector:withObject:afterDelay:inModes:", &performInModes>(
      "always on the main run loop");
  addToRootClass<"performSelectorOnMainThread:withObject:waitUntilDone:", &performOnMainThread>();
  const FidelityPage page("Foundation", "NSObject");
  const Class cls = objc_getClass("NSObject");
  if (page.record('+', "cancelPreviousPerformRequestsWithTarget:", {Grade::real, ""}))
    objc::addClassMethod<"cancelPreviousPerformRequestsWithTarget:", &cancelAll>(cls);
  if (page.record('+',
                  "cancelPreviousPerformRequestsWithTarget:selector:object:", {Grade::real, ""})) {
    objc::addClassMethod<"cancelPreviousPerformRequestsWithTarget:selector:object:",
                         &cancelMatching>(cls);
  }
}

}  // namespace sim
