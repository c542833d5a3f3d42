#include "simulator/foundation/NSNotificationCenter.h"

#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSNotification.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/runtime/Send.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

// What observing with a block gives back.
struct Token : objc::Implementation<Token> {};

Object defaultCenter() {
  return onlyObject<NSNotificationCenter>();
}

void deliver(const Observation& observation, Object notification) {
  if (observation.block) {
    const Strong<NotificationBlock> block = observation.block;  // it may remove itself
    block.get()(notification);
    return;
  }
  const Strong<Object> observer = observation.observer.load();
  if (observer) {
    sim::runtime::send<void>(observer.get().get(), observation.selector, notification.get());
  }
}

}  // namespace

Object notificationCenter() {
  return objc::send<Object, "defaultCenter">(NSNotificationCenter::cls());
}

bool Observation::wants(Object postedName, Object postedObject) const {
  if (removed || (object != nullptr && object != postedObject.get())) return false;
  return !name || objc::send<bool, "isEqual:">(name.get(), postedName);
}

void NSNotificationCenter::addObserver(Object observer, SEL selector, Object name, Object object) {
  if (!observer) return;
  auto made = std::make_shared<Observation>();
  made->address = observer.get();
  made->observer = objc::weak(observer);
  made->selector = selector;
  made->name = objc::adopt(objc::send<Object, "copy">(name));
  made->object = object.get();
  observations.push_back(std::move(made));
}

Object NSNotificationCenter::addObserverForName(Object name, Object object, Object,
                                                NotificationBlock block) {
  auto made = std::make_shared<Observation>();
  made->token = Token::make();
  made->address = made->token.get().get();
  made->block = objc::adopt(objc::send<NotificationBlock, "copy">(block));
  made->name = objc::adopt(objc::send<Object, "copy">(name));
  made->object = object.get();
  observations.push_back(made);
  return made->token;
}

void NSNotificationCenter::removeObserver(Object observer) {
  removeObserverNamed(observer, nullptr, nullptr);
}

void NSNotificationCenter::removeObserverNamed(Object observer, Object name, Object object) {
  std::vector<std::shared_ptr<Observation>> removed;  // released once the list is whole again
  std::erase_if(observations, [&](const std::shared_ptr<Observation>& observation) {
    const bool matches = observation->address == observer.get() &&
                         (!object || observation->object == object.get()) &&
                         (!name || (observation->name &&
                                    objc::send<bool, "isEqual:">(observation->name.get(), name)));
    if (matches) {
      observation->removed = true;
      removed.push_back(observation);
    }
    return matches;
  });
}

void NSNotificationCenter::postNotification(Object notification) {
  const NSNotification* state = stateOf<NSNotification>(notification);
  if (state == nullptr) {
    raiseException(
        "NSInvalidArgumentException",
        "*** " + methodName(Object(self()), "postNotification:") + ": notification is nil");
  }
  Phone::current().journal.record("post " + sim::quoted(text(state->name)));
  // Who is added during the post does not hear of it, and who is removed does not any more.
  const auto listeners = observations;
  for (const auto& listener : listeners)
    if (listener->wants(state->name, state->object)) deliver(*listener, notification);
  std::erase_if(observations, [](const auto& observation) {
    return !observation->block && !observation->observer.load();
  });
}

void NSNotificationCenter::postNotificationName(Object name, Object object) {
  postNotification(notification(name, object, nullptr));
}

void NSNotificationCenter::postNotificationNameInfo(Object name, Object object, Object userInfo) {
  postNotification(notification(name, object, userInfo));
}

void NSNotificationCenter::registerClass() {
  StandIn<Token>("Foundation", "__NSObserver", "NSObject").finish();
  StandIn<NSNotificationCenter>("Foundation", "NSNotificationCenter", "NSObject")
      .classMethod<"defaultCenter", &defaultCenter>()
      .method<"addObserver:selector:name:object:", &NSNotificationCenter::addObserver>()
      .partial<"addObserverForName:object:queue:usingBlock:",
               &NSNotificationCenter::addObserverForName>(
          "the block runs on the posting thread, whatever the queue")
      .method<"removeObserver:", &NSNotificationCenter::removeObserver>()
      .method<"removeObserver:name:object:", &NSNotificationCenter::removeObserverNamed>()
      .method<"postNotification:", &NSNotificationCenter::postNotification>()
      .method<"postNotificationName:object:", &NSNotificationCenter::postNotificationName>()
      .method<"postNotificationName:object:userInfo:",
              &NSNotificationCenter::postNotificationNameInfo>()
      .finish();
}

}  // namespace sim
