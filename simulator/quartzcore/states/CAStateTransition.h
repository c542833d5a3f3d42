// How a layer tree gets from one state to another: the animations of its layers.
#pragma once

#include "objc/Class.h"

namespace sim {

struct CAStateTransition : objc::Implementation<CAStateTransition> {
  objc::Strong<objc::Object> fromState;  // NSString, a state's name or "*"
  objc::Strong<objc::Object> toState;    // NSString, a state's name or "*"
  objc::Strong<objc::Object> elements;   // NSArray of CAStateTransitionElement; nil: none

  static void registerClass();
};

struct CAStateTransitionElement : objc::Implementation<CAStateTransitionElement> {
  objc::Weak<objc::Object> target;       // CALayer
  objc::Strong<objc::Object> key;        // NSString
  objc::Strong<objc::Object> animation;  // CAAnimation
  double beginTime = 0;                  // seconds
  double duration = 0;                   // seconds; 0: the animation's own
  bool enabled = true;

  static void registerClass();
};

}  // namespace sim
