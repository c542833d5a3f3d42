#include "simulator/serve/ScreenViews.h"

#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/uikit/application/UIWindow.h"
#include "simulator/uikit/autolayout/NSLayoutConstraint.h"
#include "simulator/uikit/autolayout/ViewConstraints.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/touches/Touch.h"
#include "simulator/uikit/views/UILabel.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {

using nlohmann::json;
using objc::Object;

namespace {

constexpr std::pair<unsigned long, const char*> eventNames[] = {
    {UIControl::touchDown, "touchDown"},
    {UIControl::touchDragInside, "touchDragInside"},
    {UIControl::touchDragOutside, "touchDragOutside"},
    {UIControl::touchDragEnter, "touchDragEnter"},
    {UIControl::touchDragExit, "touchDragExit"},
    {UIControl::touchUpInside, "touchUpInside"},
    {UIControl::touchUpOutside, "touchUpOutside"},
    {UIControl::touchCancel, "touchCancel"},
    {UIControl::valueChanged, "valueChanged"}};

// As the scene names the view's layer; null for what is no view.
json layerNameOf(Object view) {
  if (!isA<UIView>(view)) return nullptr;
  return std::to_string(CALayer::of(UIView::layerOf(view)).identity);
}

json eventsOf(unsigned long events) {
  json names = json::array();
  for (const auto& [event, name] : eventNames)
    if ((events & event) != 0) names.push_back(name);
  return names;
}

json actionsOf(const UIControl& control) {
  json all = json::array();
  for (const ControlAction& action : control.actions) {
    const auto target = action.target.load();
    all.push_back({{"events", eventsOf(action.events)},
                   {"target", target ? json(object_getClassName(target.get().get())) : json()},
                   {"action", sel_getName(action.selector)}});
  }
  return all;
}

json constraintsOwnedBy(Object view) {
  json all = json::array();
  const ViewConstraints* its = existingConstraintsOf(view);
  if (its == nullptr) return all;
  for (const auto& owned : its->owned) {
    const NSLayoutConstraint& constraint = NSLayoutConstraint::of(owned.get());
    const auto first = constraint.firstItem.load(), second = constraint.secondItem.load();
    all.push_back({{"text", constraint.description()},
                   {"items", {layerNameOf(first.get()), layerNameOf(second.get())}}});
  }
  return all;
}

json rectangleOf(const CGRect& its) {
  return {its.origin.x, its.origin.y, its.size.width, its.size.height};
}

void addState(json& made, Object view) {
  const UIView& state = UIView::of(view);
  made["alpha"] = state.alpha();
  made["hidden"] = state.isHidden();
  made["userInteractionEnabled"] = state.userInteractionEnabled;
  made["tag"] = state.tag;
  made["translatesAutoresizingMaskIntoConstraints"] = !isPlacedByConstraints(view);
  if (const char* why = whyUntouchable(state)) made["untouchable"] = why;
  if (state.controller) made["controller"] = object_getClassName(state.controller.get());
  if (const UILabel* label = stateOf<UILabel>(view); label != nullptr && label->text)
    made["text"] = text(label->text);
  if (const UIControl* control = stateOf<UIControl>(view)) {
    made["enabled"] = control->enabled;
    made["selected"] = control->selected;
    made["actions"] = actionsOf(*control);
  }
}

// `target` names it in scripts.
json describedView(Object view, const std::string& target) {
  const UIView& state = UIView::of(view);
  json made = {{"id", layerNameOf(view)},
               {"class", object_getClassName(view.get())},
               {"target", target},
               {"frame", rectangleOf(state.geometry().frame())},
               {"bounds", rectangleOf(state.geometry().bounds)},
               {"constraints", constraintsOwnedBy(view)}};
  addState(made, view);
  json children = json::array();
  for (std::size_t index = 0; index < state.children.size(); ++index)
    children.push_back(
        describedView(state.children[index].get(), target + ".subviews." + std::to_string(index)));
  made["children"] = std::move(children);
  return made;
}

json hitAt(CGPoint point) {
  const Object hit = viewOnScreenAt(point);
  if (!hit) return nullptr;
  const Object handler = responderToTouch(hit);
  return {{"view", layerNameOf(hit)},
          {"handler", handler ? layerNameOf(handler) : json()},
          {"class", handler ? json(object_getClassName(handler.get())) : json()}};
}

}  // namespace

json viewsOnScreen(std::optional<CGPoint> point) {
  json views = json::array();
  std::size_t index = 0;
  for (const auto& window : UIWindow::applicationWindows())
    views.push_back(describedView(
        window.get(), "UIApplication.sharedApplication.windows." + std::to_string(index++)));
  return {{"views", std::move(views)}, {"hit", point ? hitAt(*point) : json()}};
}

}  // namespace sim
