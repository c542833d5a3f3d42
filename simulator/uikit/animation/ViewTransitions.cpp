// UIView: transitions, which are animations between two states of a tree.
#include <memory>
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

// A view's transition, and the one of before that it has taken the place of.
struct Transition {
  AnimationTiming timing;
  CALayer* layer = nullptr;                  // nullptr: nothing is seen
  std::shared_ptr<AnimationGroup> replaced;  // nullptr: there was none
};

// The picture is taken before anything changes.
Transition begin(Object view, double seconds, unsigned long options) {
  Transition made{timingOf({.duration = seconds, .options = options}), nullptr, nullptr};
  CALayer* layer = view ? stateOf<CALayer>(UIView::layerOf(view)) : nullptr;
  const bool isSeen = animationsAreEnabled() &&
                      made.timing.end() > Phone::current().clock.uptime() &&
                      (options & animation::transitionMask) != 0;
  if (layer == nullptr || !isSeen) return made;
  made.layer = layer;
  made.replaced = beginTransition(*layer, made.timing);
  return made;
}

// Once all has changed.
void finish(const Transition& transition, AnimationCompletion ended) {
  finishAnimation(transition.timing, ended);
  if (transition.replaced) transition.replaced->interrupt(*transition.layer);
}

void transitionWithView(Object view, double seconds, unsigned long options, AnimationBlock changes,
                        AnimationCompletion ended) {
  const auto kept = objc::retain(view);
  const Transition transition = begin(view, seconds, options);
  if ((options & animation::allowAnimatedContent) != 0)
    animateChanges({.duration = seconds, .options = options}, changes, nullptr);
  else
    changes();
  finish(transition, ended);
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

Transition beginWithout(Object second, Object container, double seconds, unsigned long options) {
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
  const auto container = objc::retain(from ? UIView::of(from).parent : Object());
  const Transition transition = beginWithout(to, container.get(), seconds, options);
  if ((options & animation::showHideTransitionViews) != 0) {
    objc::send<void, "setHidden:">(from, true);
    objc::send<void, "setHidden:">(to, false);
  } else if (from) {
    exchange(from, to);
  }
  finish(transition, ended);
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
