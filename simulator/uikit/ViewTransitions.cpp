// UIView: transitions, which are animations between two states of a tree.
#include "objc/Message.h"
#include "simulator/uikit/Animation.h"
#include "simulator/uikit/ViewMethods.h"

namespace sim {
namespace {

using objc::Object;

constexpr unsigned long showHideTransitionViews = 1 << 8;

void transitionWithView(Object, double seconds, unsigned long, AnimationBlock changes,
                        AnimationCompletion ended) {
  changes();
  finishAnimation(seconds, ended);
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
  if ((options & showHideTransitionViews) != 0) {
    objc::send<void, "setHidden:">(from, true);
    objc::send<void, "setHidden:">(to, false);
  } else if (from) {
    exchange(from, to);
  }
  finishAnimation(seconds, ended);
}

}  // namespace

void addViewTransitions(StandIn<UIView>& view) {
  view.partialClassMethod<"transitionWithView:duration:options:animations:completion:",
                          &transitionWithView>("shows no picture in between")
      .partialClassMethod<"transitionFromView:toView:duration:options:completion:",
                          &transitionBetween>("shows no picture in between");
}

}  // namespace sim
