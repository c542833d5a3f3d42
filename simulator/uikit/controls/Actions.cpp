#include "simulator/uikit/controls/Actions.h"

#include <algorithm>
#include <string_view>

#include "objc/Message.h"
#include "objc/Ownership.h"
#include "simulator/runtime/Send.h"

namespace sim {

using objc::Object;

void performAction(SEL action, Object target, Object sender, Object event) {
  if (!target || action == nullptr) return;
  const auto kept = objc::retain(target);
  const std::string_view name = sel_getName(action);
  const auto arguments = std::count(name.begin(), name.end(), ':');
  if (arguments == 0) return sim::runtime::send<void>(target.get(), action);
  if (arguments == 1) return sim::runtime::send<void>(target.get(), action, sender.get());
  sim::runtime::send<void>(target.get(), action, sender.get(), event.get());
}

Object firstResponderTo(SEL action, Object sender) {
  while (sender && !class_respondsToSelector(object_getClass(sender.get()), action))
    sender = objc::send<Object, "nextResponder">(sender);
  return sender;
}

}  // namespace sim
