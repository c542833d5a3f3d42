// Controls: views that send messages to others when they are used.
#pragma once

#include <vector>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct ControlAction {
  objc::Weak<objc::Object> target;
  id identity = nullptr;  // of the target, for comparing; nil: up the responder chain
  SEL selector = nullptr;
  unsigned long events = 0;
};

struct UIControl : objc::Implementation<UIControl> {
  static constexpr unsigned long touchDown = 1 << 0;
  static constexpr unsigned long touchDragInside = 1 << 2, touchDragOutside = 1 << 3,
                                 touchDragEnter = 1 << 4, touchDragExit = 1 << 5;
  static constexpr unsigned long touchUpInside = 1 << 6;
  static constexpr unsigned long touchUpOutside = 1 << 7, touchCancel = 1 << 8;
  static constexpr unsigned long valueChanged = 1 << 12;
  static constexpr unsigned long normal = 0, highlightedState = 1, disabledState = 2,
                                 selectedState = 4;

  std::vector<ControlAction> actions;  // in the order in which they were added
  bool enabled = true;
  bool selected = false;
  bool highlighted = false;
  bool tracking = false;     // a finger that has begun in it
  bool touchInside = false;  // and whether it is in it or near

  // The same target and action again only adds events.
  void addTarget(objc::Object target, SEL action, unsigned long events);
  // nil and NULL stand for any.
  void removeTarget(objc::Object target, SEL action, unsigned long events);
  objc::Object actionsForTarget(objc::Object target, unsigned long event) const;
  unsigned long allControlEvents() const;
  void sendActionsForEvents(unsigned long events, objc::Object event);
  void sendAction(SEL action, objc::Object target, objc::Object event);
  unsigned long state() const;
  unsigned long stateTraits() const;  // of the state; what it is says the subclass

  static void registerClass();
};

}  // namespace sim
