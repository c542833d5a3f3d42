#include "simulator/services/PCSimpleTimer.h"

#include <cstring>
#include <utility>

#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

void perform(objc::Object target, SEL selector, objc::Object timer) {
  const bool takesTimer = std::strchr(sel_getName(selector), ':') != nullptr;
  if (takesTimer)
    objc::send<objc::Object, "performSelector:withObject:">(target, selector, timer);
  else
    objc::send<objc::Object, "performSelector:">(target, selector);
}

}  // namespace

objc::Object PCSimpleTimer::initWithTimeInterval_serviceIdentifier_target_selector_userInfo(
    double seconds, objc::Object service, objc::Object owner, SEL action, objc::Object info) {
  interval = seconds;
  serviceIdentifier = objc::adopt(objc::send<objc::Object, "copy">(service));
  target = objc::retain(owner);
  selector = action;
  userInfo = objc::retain(info);
  valid = true;
  return objc::Object(self());
}

void PCSimpleTimer::scheduleInRunLoop(objc::Object runLoop) {
  if (!valid || fireTimer) return;
  Phone::current().journal.record("-[PCSimpleTimer scheduleInRunLoop:]");
  fireTimer = objc::retain(
      objc::send<objc::Object, "timerWithTimeInterval:target:selector:userInfo:repeats:">(
          objc_getClass("NSTimer"), interval, self(), objc::selector<"_fireTimerFired:">(), nullptr,
          false));
  objc::send<void, "addTimer:forMode:">(runLoop, fireTimer.get(), string("kCFRunLoopCommonModes"));
}

// Journals only what had an effect: invalidating twice is invalidating once.
void PCSimpleTimer::invalidate() {
  if (!valid) return;
  Phone::current().journal.record("-[PCSimpleTimer invalidate]");
  const auto alive = objc::retain(objc::Object(self()));  // the NSTimer may hold the last reference
  objc::send<void, "invalidate">(fireTimer.get());
  valid = false;
  fireTimer = nullptr;
  target = nullptr;
}

void PCSimpleTimer::fireTimerFired(objc::Object) {
  const auto alive = objc::retain(objc::Object(self()));
  Phone::current().journal.record("-[PCSimpleTimer fire] " + notation(serviceIdentifier.get()));
  valid = false;
  const auto receiver = std::exchange(target, nullptr);
  perform(receiver.get(), selector, objc::Object(self()));
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
      .partial<"_fireTimerFired:", &PCSimpleTimer::fireTimerFired>(
          "keeps the timer that has fired, whose date is past then")
      .finish();
}

}  // namespace sim
