#include "simulator/uikit/controls/UIControl.h"

#include <algorithm>
#include <string>

#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/controls/Actions.h"
#include "simulator/uikit/controls/ControlTracking.h"
#include "simulator/uikit/views/ViewAccessibility.h"

namespace sim {
namespace {

using objc::Object;

void sendActionsForControlEvents(Object self, unsigned long events) {
  UIControl::of(self).sendActionsForEvents(events, nullptr);
}

unsigned long traitsOfState(Object self) {
  return accessibilityTraitsOr(self.get(), UIControl::of(self).stateTraits());
}

}  // namespace

void UIControl::addTarget(Object target, SEL action, unsigned long events) {
  for (ControlAction& known : actions)
    if (known.identity == target.get() && known.selector == action) {
      known.events |= events;
      return;
    }
  actions.push_back({objc::weak(target), target.get(), action, events});
}

void UIControl::removeTarget(Object target, SEL action, unsigned long events) {
  for (ControlAction& known : actions)
    if ((!target || known.identity == target.get()) &&
        (action == nullptr || known.selector == action))
      known.events &= ~events;
  std::erase_if(actions, [](const ControlAction& known) { return known.events == 0; });
}

// nil when there is none.
Object UIControl::actionsForTarget(Object target, unsigned long event) const {
  std::vector<Object> names;
  for (const ControlAction& known : actions)
    if (known.identity == target.get() && (known.events & event) != 0)
      names.push_back(string(sel_getName(known.selector)));
  return names.empty() ? Object() : array(names);
}

unsigned long UIControl::allControlEvents() const {
  unsigned long all = 0;
  for (const ControlAction& known : actions) all |= known.events;
  return all;
}

// Actions may add and remove others: those of now are sent.
void UIControl::sendActionsForEvents(unsigned long events, Object event) {
  const auto kept = objc::retain(Object(self()));
  const auto now = actions;
  for (const ControlAction& each : now) {
    const auto target = each.target.load();
    if ((each.events & events) == 0 || (each.identity != nullptr && !target)) continue;
    objc::send<void, "sendAction:to:forEvent:">(self(), each.selector, target.get(), event);
  }
}

void UIControl::sendAction(SEL action, Object target, Object event) {
  performAction(action, target ? target : firstResponderTo(action, Object(self())), Object(self()),
                event);
}

unsigned long UIControl::state() const {
  return (highlighted ? highlightedState : normal) | (enabled ? normal : disabledState) |
         (selected ? selectedState : normal);
}

unsigned long UIControl::stateTraits() const {
  return (enabled ? 0 : ViewAccessibility::notEnabled) |
         (selected ? ViewAccessibility::selected : 0);
}

void UIControl::registerClass() {
  StandIn<UIControl> control("UIKit", "UIControl", "UIView");
  addControlTracking(control);
  control.method<"addTarget:action:forControlEvents:", &UIControl::addTarget>()
      .method<"removeTarget:action:forControlEvents:", &UIControl::removeTarget>()
      .method<"actionsForTarget:forControlEvent:", &UIControl::actionsForTarget>()
      .method<"allControlEvents", &UIControl::allControlEvents>()
      .method<"sendAction:to:forEvent:", &UIControl::sendAction>()
      .method<"sendActionsForControlEvents:", &sendActionsForControlEvents>()
      .flag<"enabled", "isEnabled", &UIControl::enabled>()
      .flag<"selected", "isSelected", &UIControl::selected>()
      .flag<"highlighted", "isHighlighted", &UIControl::highlighted>()
      .method<"state", &UIControl::state>()
      .method<"accessibilityTraits", &traitsOfState>()
      .finish();
}

}  // namespace sim
