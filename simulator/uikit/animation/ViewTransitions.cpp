// UIView: transitions, which are animations between two states of a tree.
#include <utility>

#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/machine/Phone.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/uikit/animation/Animation.h"
#include "simulator/uikit/views/ViewMethods.h"

namespace sim {
namespace {

using objc::Object;

// The picture is taken before anything changes.
AnimationTiming begin(Object view, double seconds, unsigned long options) {
  const AnimationTiming timing = timingOf({.duration = seconds, .options = options});
  CALayer* layer = view ? stateOf<CALayer>(UIView::layerOf(view)) : nullptr;
  const bool isSeen = animationsAreEnabled() && timing.end() > Phone::current().clock.uptime() &&
                      (options & animation::transitionMask) != 0;
  if (layer != nullptr && isSeen) beginTransition(*layer, timing);
  return timing;
}

void transitionWithView(Object view, double seconds, unsigned long options, AnimationBlock changes,
                        AnimationCompletion ended) {
  const AnimationTiming timing = begin(view, seconds, options);
  if ((options & animation::allowAnimatedContent) != 0)
    animateChanges({.duration = seconds, .options = options}, changes, nullptr);
  else
    changes();
  finishAnimation(timing, ended);
}

// The platform dissolves what it showed last, and the second view was not to be seen then, even if
// it has been unhidden since.
class HiddenGuard {
 public:
  explicit HiddenGuard(Object view)
      : layer_(view ? stateOf<CALayer>(UIView::layerOf(view)) : nullptr),
        wasHidden_(layer_ != nullptr && std::exchange(layer_->hidden, true)) {}
  ~HiddenGuard() {
    if (layer_ != nullptr) layer_->hidden = wasHidden_;
  }
  HiddenGuard(const HiddenGuard&) = delete;
  HiddenGuard& operator=(const HiddenGuard&) = delete;

 private:
  CALayer* layer_;
  bool wasHidden_;
};

AnimationTiming beginWithout(Object second, Object container, double seconds,
                             unsigned long options) {
  const HiddenGuard unseen(second);
  return begin(container, seconds, options);
}

// As the documentation spells it out: the container, the first view's superview, lets go of the
// first view and adds the second, which comes to lie in front.
void exchange(Object from, Object to) {
  const auto container = objc::retain(UIView::of(from).parent);
  objc::send<void, "removeFromSuperview">(from);
  objc::send<void, "addSubview:">(container.get(), to);
}

void transitionBetween(Object from, Object to, double seconds, unsigned long options,
                       AnimationCompletion ended) {
  const auto kept = objc::retain(from);
  const Object container = from ? UIView::of(from).parent : Object();
  const AnimationTiming timing = beginWithout(to, container, seconds, options);
  if ((options & animation::showHideTransitionViews) != 0) {
    objc::send<void, "setHidden:">(from, true);
    objc::send<void, "setHidden:">(to, false);
  } else if (from) {
    exchange(from, to);
  }
  finishAnimation(timing, ended);
}

}  // namespace

void addViewTransitions(StandIn<UIView>& view) {
  constexpr const char* difference = "every kind is seen as a dissolve";
  view.partialClassMethod<"transitionWithView:duration:options:animations:completion:",
                          &transitionWithView>(difference)
      .partialClassMethod<"transitionFromView:toView:duration:options:completion:",
                          &transitionBetween>(difference);
}

}  // namespace sim
