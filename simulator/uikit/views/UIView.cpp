#include "simulator/uikit/views/UIView.h"

#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/uikit/autolayout/ViewConstraints.h"
#include "simulator/uikit/views/ViewMethods.h"

namespace sim {
namespace {

using objc::Object;

Object init(Object self) {
  return objc::send<Object, "initWithFrame:">(self, CGRect());
}

Class layerClass() {
  return CALayer::cls();
}

void makeLayer(UIView& view) {
  const Class its = objc::send<Class, "layerClass">(object_getClass(view.self()));
  view.layer = objc::adopt(Object(objc_alloc_init(its)));
  if (CALayer* layer = stateOf<CALayer>(view.layer.get())) layer->delegate = Object(view.self());
}

// The controller's whose view it is, else the superview's.
Object viewControllerForAncestor(Object self) {
  for (Object view = self; view; view = UIView::of(view).parent)
    if (UIView::of(view).controller) return UIView::of(view).controller;
  return nullptr;
}

Object nextResponder(Object self) {
  const UIView& view = UIView::of(self);
  return view.controller ? view.controller : view.parent;
}

}  // namespace

UIView::UIView() = default;

UIView::~UIView() {
  if (CALayer* state = stateOf<CALayer>(layer.get())) state->delegate = nullptr;
  for (const auto& child : children) of(child.get()).parent = nullptr;
}

Object UIView::layerOf(Object view) {
  if (!of(view).layer) makeLayer(of(view));
  return of(view).layer;
}

LayerGeometry& UIView::geometry() {
  CALayer* state = stateOf<CALayer>(layerOf(Object(self())));
  return state != nullptr ? state->geometry : withoutLayer_;
}

objc::Object UIView::initWithFrame(CGRect frame) {
  const Object made = super<Object, "init">();
  if (made && !(frame == CGRect())) {
    geometry().setFrame(frame);
    needsLayout = true;
  }
  return made;
}

void UIView::registerClass() {
  StandIn<UIView> view("UIKit", "UIView", "UIResponder");
  view.method<"init", &init>()
      .method<"initWithFrame:", &UIView::initWithFrame>()
      .classMethod<"layerClass", &layerClass>()
      .method<"layer", &UIView::layerOf>()
      .method<"nextResponder", &nextResponder>()
      .method<"_viewControllerForAncestor", &viewControllerForAncestor>();
  addViewGeometry(view);
  addViewTree(view);
  addViewLayout(view);
  addAutoLayout(view);
  addViewAppearance(view);
  addAccessibility(view);
  addHitTesting(view);
  addViewAnimations(view);
  addViewTransitions(view);
  view.finish();
}

}  // namespace sim
