// A small icon button that is easy to hit and answers with a tap.
#pragma once

#include "objc/Class.h"
#include "platform/UIKit.h"

struct ButtonWithIncreasedTouchArea : objc::Implementation<ButtonWithIncreasedTouchArea> {
  static objc::Strong<UIButton> make();  // of the custom type

  bool pointInside_withEvent(CGPoint point, objc::Object event);
  void sendAction_to_forEvent(SEL action, objc::Object target, objc::Object event);

  static Class registerClass();
};
