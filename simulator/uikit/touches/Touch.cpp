#include "simulator/uikit/touches/Touch.h"

#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/uikit/application/UIResponder.h"
#include "simulator/uikit/application/UIWindow.h"
#include "simulator/uikit/controls/UIButton.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {
namespace {

using objc::Object;

constexpr double almostTransparent = 0.01;

struct EndOfAnimations {
  int asked = 0;  // how often it counts as come
};

int& endOfAnimations() {
  return Phone::current().state<EndOfAnimations>().asked;
}

template <objc::FixedString Selector>
bool handlesAs(Object object, Class like) {
  const SEL selector = objc::selector<Selector>();
  return class_getMethodImplementation(object_getClass(object.get()), selector) ==
         class_getMethodImplementation(like, selector);
}

bool onlyPassesTouchesOn(Object responder) {
  return handlesAs<"touchesBegan:withEvent:">(responder, UIResponder::cls()) &&
         handlesAs<"touchesEnded:withEvent:">(responder, UIResponder::cls());
}

// What keeps a touch from the view: itself or one that it lies in, in words; empty when it is
// another that lies above.
std::string obstacleTo(Object view, CGPoint point) {
  for (Object each = view; each; each = UIView::of(each).parent) {
    const std::string name = nameForPeople(each) + (each == view ? "" : " around it");
    if (const char* why = whyUntouchable(UIView::of(each))) return name + ' ' + why;
    if (!objc::send<bool, "pointInside:withEvent:">(each, point, nullptr))
      return "the point lies outside " + name;
    point = UIView::of(each).geometry().toSuperlayer(point);
  }
  return {};
}

}  // namespace

AnimationsCountAsEnded::AnimationsCountAsEnded() {
  ++endOfAnimations();
}
AnimationsCountAsEnded::~AnimationsCountAsEnded() {
  --endOfAnimations();
}

const char* whyUntouchable(const UIView& view) {
  if (view.isHidden()) return "is hidden";
  if (view.alpha() < almostTransparent) return "is transparent";
  if (!view.userInteractionEnabled) return "takes no touches";
  const CALayer* layer = stateOf<CALayer>(view.layer.get());
  const bool isAnimated = layer != nullptr && endOfAnimations() == 0 &&
                          layer->ignoresTouches(Phone::current().clock.uptime());
  return isAnimated ? "is still being animated" : nullptr;
}

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

Object responderToTouch(Object hit) {
  while (hit && !isA<UIControl>(hit) && onlyPassesTouchesOn(hit))
    hit = objc::send<Object, "nextResponder">(hit);
  return hit;
}

bool isTrackedByUIControl(Object responder) {
  return isA<UIControl>(responder) &&
         handlesAs<"touchesBegan:withEvent:">(responder, UIControl::cls());
}

CGPoint middleOf(Object view) {
  const CGRect bounds = UIView::of(view).geometry().bounds;
  return {bounds.origin.x + bounds.size.width / 2, bounds.origin.y + bounds.size.height / 2};
}

std::string nameForPeople(Object responder) {
  std::string name = object_getClassName(responder.get());
  if (!isA<UIButton>(responder)) return name;
  const std::string title = text(objc::send<Object, "currentTitle">(responder));
  return title.empty() ? name : name + ' ' + sim::quoted(title);
}

Object responderTouchedAt(Object view, CGPoint point) {
  const std::string name = nameForPeople(view);
  const Object hit = viewTouchedAt(view, point);
  if (!hit || !touchIsFor(view, hit)) {
    const std::string why = obstacleTo(view, point);
    throw OutOfReach("the touch does not reach " + name + " but " +
                     (hit ? nameForPeople(hit) : "nothing") + (why.empty() ? why : ": " + why));
  }
  const Object responder = responderToTouch(hit);
  if (!responder) throw OutOfReach(name + " is no control, lies in none and takes no touches");
  if (const UIControl* control = stateOf<UIControl>(responder); control && !control->enabled)
    throw OutOfReach(nameForPeople(responder) + " is not enabled");
  return responder;
}

}  // namespace sim
