#include "simulator/foundation/NSNotification.h"

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

Object makeWithName(Object name, Object object) {
  return notification(name, object, nullptr);
}

Object describe(Object self) {
  const NSNotification& state = NSNotification::of(self);
  std::string result = "NSNotification {name = " + description(state.name);
  if (state.object) result += "; object = " + description(state.object);
  if (state.userInfo) result += "; userInfo = " + description(state.userInfo);
  return string(result + '}');
}

}  // namespace

Object notification(Object name, Object object, Object userInfo) {
  objc::Strong<Object> made = NSNotification::make();
  NSNotification& state = NSNotification::of(made.get());
  state.name = objc::adopt(objc::send<Object, "copy">(name));
  state.object = objc::retain(object);
  state.userInfo = objc::retain(userInfo);
  return autorelease(std::move(made));
}

void NSNotification::registerClass() {
  StandIn<NSNotification>("Foundation", "NSNotification", "NSObject")
      .classMethod<"notificationWithName:object:", &makeWithName>()
      .classMethod<"notificationWithName:object:userInfo:", &notification>()
      .readonlyProperty<"name", &NSNotification::name>()
      .readonlyProperty<"object", &NSNotification::object>()
      .readonlyProperty<"userInfo", &NSNotification::userInfo>()
      .method<"copyWithZone:", &shareAsCopy>()
      .partial<"description", &describe>("without the notification's address")
      .finish();
}

}  // namespace sim
