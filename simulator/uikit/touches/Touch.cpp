#include "simulator/uikit/touches/Touch.h"

#include "objc/Message.h"
#include "objc/Ownership.h"
#include "simulator/foundation/Kind.h"
#include "simulator/uikit/application/UIWindow.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/touches/UIEvent.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {

using objc::Object;

Object viewOnScreenAt(CGPoint point) {
  const auto windows = UIWindow::visibleWindows();
  for (auto window = windows.rbegin(); window != windows.rend(); ++window)
    if (const Object hit = objc::send<Object, "hitTest:withEvent:">(window->get(), point, nullptr))
      return hit;
  return nullptr;
}

Object viewTouchedAt(Object view, CGPoint point) {
  const Object root = rootOf(view);
  const CGPoint onScreen = toRoot(view, point);
  if (isA<UIWindow>(root)) return viewOnScreenAt(onScreen);
  return objc::send<Object, "hitTest:withEvent:">(root, onScreen, nullptr);
}

bool touchIsFor(Object view, Object hit) {
  return isDescendant(hit, view) || (isA<UIControl>(hit) && isDescendant(view, hit));
}

Object controlTracking(Object hit) {
  while (hit && !isA<UIControl>(hit)) hit = UIView::of(hit).parent;
  return hit;
}

void tapControl(Object control) {
  const auto kept = objc::retain(control);
  const auto event = UIEvent::make();
  objc::send<void, "setHighlighted:">(control, true);
  UIControl::of(control).sendActionsForEvents(UIControl::touchDown, event.get());
  objc::send<void, "setHighlighted:">(control, false);
  UIControl::of(control).sendActionsForEvents(UIControl::touchUpInside, event.get());
}

}  // namespace sim
