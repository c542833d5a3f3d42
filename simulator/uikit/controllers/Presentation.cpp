// UIViewController: controllers over controllers.
#include "objc/Block.h"
#include "objc/Message.h"
#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/standin/Versions.h"
#include "simulator/uikit/animation/Animation.h"
#include "simulator/uikit/controllers/UIViewController.h"
#include "simulator/uikit/views/UIView.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {
namespace {

using objc::Object;

// What the animation takes on the platform.
constexpr double animationSeconds = 0.4;

// Also without an animation the caller's code ends first.
void completeLater(bool animated, objc::Block<void()> completion) {
  if (!completion) return;
  Phone& phone = Phone::current();
  auto kept = objc::adopt(objc::send<objc::Block<void()>, "copy">(completion));
  const Nanoseconds wait = animated ? nanoseconds(animationSeconds) : 0;
  phone.queue.add(phone.clock.uptime() + wait, [kept = std::move(kept)] { kept.get()(); });
}

void refuse(Object presenter, Object controller, const std::string& why) {
  Phone::current().journal.record("log " +
                                  sim::quoted("Attempt to present " + description(controller) +
                                              " on " + description(presenter) + why));
}

Object windowOfController(const UIViewController& controller) {
  return controller.loadedView ? windowOf(controller.loadedView) : Object();
}

}  // namespace

void UIViewController::present(Object controller, bool animated, objc::Block<void()> completion) {
  if (!controller)
    raiseException("NSInvalidArgumentException",
                   "Application tried to present a nil modal view controller");
  if (presented)
    return refuse(Object(self()), controller,
                  " which is already presenting " + description(presented));
  const Object place = windowOfController(*this);
  if (!place)
    return refuse(Object(self()), controller, " whose view is not in the window hierarchy.");
  presented = objc::retain(controller);
  of(controller).presenting = Object(self());
  // Since iOS 13 a window that nobody holds goes with all that is presented in it.
  constexpr int holdsNone = 13;
  if (systemMajor() < holdsNone) of(controller).window = objc::retain(place);
  const Object view = objc::send<Object, "view">(controller);
  objc::send<void, "setFrame:">(view, UIView::of(place).geometry().bounds);
  insertSubview(place, view, std::size_t(-1));
  if (animated && animationsAreEnabled()) objc::send<void, "_animateIn">(controller);
  completeLater(animated, completion);
}

void UIViewController::animateIn() {
  CALayer* layer = stateOf<CALayer>(UIView::layerOf(objc::send<Object, "view">(self())));
  if (layer == nullptr) return;
  LayerValues start = layer->values();
  start.position.y += start.bounds.size.height;
  animateFrom(*layer, start,
              timingOf({.duration = animationSeconds,
                        .options = animation::allowUserInteraction | animation::curveEaseOut}));
}

void UIViewController::dismiss(bool animated, objc::Block<void()> completion) {
  if (!presented) {
    if (presenting)
      return objc::send<void, "dismissViewControllerAnimated:completion:">(presenting, animated,
                                                                           completion);
    return completeLater(animated, completion);
  }
  const auto last = std::exchange(presented, nullptr);
  UIViewController& gone = of(last.get());
  gone.presenting = nullptr;
  if (gone.presented) gone.dismiss(false, nullptr);  // those above go with it
  const auto place = std::exchange(gone.window, nullptr);
  if (gone.loadedView) removeFromSuperview(gone.loadedView);
  completeLater(animated, completion);
}

}  // namespace sim
