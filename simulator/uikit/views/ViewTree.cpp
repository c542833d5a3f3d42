#include "simulator/uikit/views/ViewTree.h"

#include <algorithm>

#include "objc/Message.h"
#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/uikit/application/UIWindow.h"
#include "simulator/uikit/autolayout/Activation.h"
#include "simulator/uikit/autolayout/LayoutEngine.h"
#include "simulator/uikit/autolayout/UpdateConstraints.h"

namespace sim {
namespace {

using objc::Object;
using objc::Strong;

// The first layer of the subviews from that place on marks the place among the sublayers: other
// layers may stand between them.
void insertLayer(Object parent, Object view, std::size_t index) {
  const Object layer = UIView::layerOf(view);
  CALayer* layers = stateOf<CALayer>(UIView::layerOf(parent));
  if (layers == nullptr) return;
  CALayer::of(layer).removeFromSuperlayer();
  const auto& views = UIView::of(parent).children;
  auto place = layers->children.end();
  if (index + 1 < views.size()) {
    const Object above = UIView::layerOf(views[index + 1].get());
    place = std::find_if(layers->children.begin(), layers->children.end(),
                         [above](const auto& each) { return each.get() == above; });
  }
  layers->insertSublayer(layer, unsigned(place - layers->children.begin()));
}

// A controller's view takes it along.
void willMoveToWindow(Object view, Object window) {
  const Object controller = UIView::of(view).controller;
  if (!window)
    objc::send<void, "viewWillDisappear:">(controller, false);
  else if (!windowOf(view))
    objc::send<void, "viewWillAppear:">(controller, false);
  objc::send<void, "willMoveToWindow:">(view, window);
  const auto children = UIView::of(view).children;
  for (const auto& child : children) willMoveToWindow(child.get(), window);
}

void didMoveToWindow(Object view, Object before) {
  UIView& state = UIView::of(view);
  const bool isInWindow = bool(windowOf(view));
  state.needsLayout = isInWindow || state.needsLayout;
  if (isInWindow) viewDidMoveToWindow(view);
  objc::send<void, "didMoveToWindow">(view);
  const auto children = state.children;
  for (const auto& child : children) didMoveToWindow(child.get(), before);
  if (!isInWindow)
    objc::send<void, "viewDidDisappear:">(state.controller, false);
  else if (!before)
    objc::send<void, "viewDidAppear:">(state.controller, false);
}

void takeOut(Object view) {
  UIView& state = UIView::of(view);
  if (!state.parent) return;
  objc::send<void, "willRemoveSubview:">(state.parent, view);
  dropConstraintsAcross(view);
  auto& siblings = UIView::of(std::exchange(state.parent, nullptr)).children;
  const auto isThis = [view](const auto& each) { return each.get() == view; };
  siblings.erase(std::find_if(siblings.begin(), siblings.end(), isThis));
  if (CALayer* layer = stateOf<CALayer>(state.layer.get())) layer->removeFromSuperlayer();
}

void putIn(Object parent, const Strong<Object>& view, std::size_t index) {
  auto& siblings = UIView::of(parent).children;
  index = std::min(index, siblings.size());
  siblings.insert(siblings.begin() + long(index), view);
  UIView::of(view.get()).parent = parent;
  insertLayer(parent, view, index);
  constraintsChanged(view);
}

// What is in no window any more moves no longer.
void removeAnimations(CALayer& layer) {
  const auto children = layer.children;
  layer.removeAllAnimations();
  for (const auto& child : children) removeAnimations(CALayer::of(child.get()));
}

void move(Object view, Object parent, std::size_t index) {
  const Strong<Object> kept = objc::retain(view);
  const Object window = parent ? windowOf(parent) : Object();
  const Object windowBefore = windowOf(view);
  const bool changesWindow = windowBefore != window;
  if (changesWindow) willMoveToWindow(view, window);
  objc::send<void, "willMoveToSuperview:">(view, parent);
  takeOut(view);
  if (parent) putIn(parent, kept, index);
  if (changesWindow) didMoveToWindow(view, windowBefore);
  objc::send<void, "didMoveToSuperview">(view);
  CALayer* layer = stateOf<CALayer>(UIView::of(view).layer.get());
  if (changesWindow && windowBefore && layer != nullptr) removeAnimations(*layer);
  if (!parent) return;
  objc::send<void, "didAddSubview:">(parent, view);
  objc::send<void, "setNeedsLayout">(parent);
}

void reorder(Object parent, Object view, std::size_t index) {
  auto& siblings = UIView::of(parent).children;
  const std::size_t old = indexOfSubview(parent, view);
  const Strong<Object> kept = siblings[old];
  siblings.erase(siblings.begin() + long(old));
  putIn(parent, kept, old < index ? index - 1 : index);
}

}  // namespace

Object rootOf(Object view) {
  while (UIView::of(view).parent) view = UIView::of(view).parent;
  return view;
}

Object windowOf(Object view) {
  const Object root = rootOf(view);
  return isA<UIWindow>(root) ? root : Object();
}

bool isDescendant(Object view, Object ancestor) {
  while (view && view != ancestor) view = UIView::of(view).parent;
  return bool(view);
}

Object commonAncestor(Object a, Object b) {
  while (a && !isDescendant(b, a)) a = UIView::of(a).parent;
  return a;
}

std::size_t indexOfSubview(Object parent, Object view) {
  const auto& views = UIView::of(parent).children;
  const auto isThis = [view](const auto& each) { return each.get() == view; };
  return std::size_t(std::find_if(views.begin(), views.end(), isThis) - views.begin());
}

void insertSubview(Object parent, Object view, std::size_t index) {
  if (!view) return;
  if (!isA<UIView>(view)) raiseWrongClass("addSubview:", view, "UIView");
  if (view == parent) raiseException("NSInvalidArgumentException", "Can't add self as subview");
  if (isDescendant(parent, view))
    raiseException("NSInvalidArgumentException", "A view cannot be a subview of its own subview");
  if (UIView::of(view).parent == parent) return reorder(parent, view, index);
  move(view, parent, index);
}

void removeFromSuperview(Object view) {
  if (UIView::of(view).parent) move(view, nullptr, 0);
}

CGPoint toRoot(Object view, CGPoint point) {
  for (; UIView::of(view).parent; view = UIView::of(view).parent)
    point = UIView::of(view).geometry().toSuperlayer(point);
  return point;
}

CGPoint fromRoot(Object view, CGPoint point) {
  if (!UIView::of(view).parent) return point;
  return UIView::of(view).geometry().fromSuperlayer(fromRoot(UIView::of(view).parent, point));
}

}  // namespace sim
