// UIKit's animations: the values change at once, the screen follows over the duration (seconds).
#pragma once

#include <utility>

#include "objc/Block.h"
#include "platform/uikit/View.h"

namespace UIKit {

using Completion = objc::Strong<objc::Block<void(bool)>>;

enum AnimationOptions : unsigned long {
  allowUserInteraction = 1 << 1,
  showHideTransitionViews = 1 << 8,
  transitionCrossDissolve = 5 << 20,
};

// Runs when the animation has ended; its argument, whether it came to its end, is not passed on.
template <class Function>
Completion completion(Function function) {
  return objc::block<void(bool)>([function = std::move(function)](bool) { function(); });
}

template <class Animations>
void animate(double seconds, Animations animations) {
  auto block = objc::block<void()>(std::move(animations));
  objc::send<void, "animateWithDuration:animations:">(objc::classNamed<"UIView">(), seconds,
                                                      block.get());
}

template <class Animations>
void animate(double seconds, Animations animations, const Completion& ended) {
  auto block = objc::block<void()>(std::move(animations));
  objc::send<void, "animateWithDuration:animations:completion:">(objc::classNamed<"UIView">(),
                                                                 seconds, block.get(), ended.get());
}

template <class Animations>
void animate(double seconds, double delay, unsigned long options, Animations animations,
             const Completion& ended) {
  auto block = objc::block<void()>(std::move(animations));
  objc::send<void, "animateWithDuration:delay:options:animations:completion:">(
      objc::classNamed<"UIView">(), seconds, delay, options, block.get(), ended.get());
}

template <class Animations>
void animateSpring(double seconds, double damping, double velocity, unsigned long options,
                   Animations animations) {
  auto block = objc::block<void()>(std::move(animations));
  objc::send<void, "animateWithDuration:delay:usingSpringWithDamping:initialSpringVelocity:options:"
                   "animations:completion:">(objc::classNamed<"UIView">(), seconds, 0.0, damping,
                                             velocity, options, block.get(),
                                             objc::Block<void(bool)>(nullptr));
}

// Without showHideTransitionViews the first view leaves its superview and the second takes its
// place.
inline void transition(UIView from, UIView to, double seconds, unsigned long options,
                       const Completion& ended) {
  objc::send<void, "transitionFromView:toView:duration:options:completion:">(
      objc::classNamed<"UIView">(), from, to, seconds, options, ended.get());
}

template <class Animations>
void transition(UIView view, double seconds, unsigned long options, Animations animations) {
  auto block = objc::block<void()>(std::move(animations));
  objc::send<void, "transitionWithView:duration:options:animations:completion:">(
      objc::classNamed<"UIView">(), view, seconds, options, block.get(),
      objc::Block<void(bool)>(nullptr));
}

}  // namespace UIKit
