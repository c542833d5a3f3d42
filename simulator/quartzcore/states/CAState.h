// A look that a layer tree can take on, by name: what it changes of the tree.
#pragma once

#include "objc/Class.h"

namespace sim {

struct CAState : objc::Implementation<CAState> {
  objc::Strong<objc::Object> name;      // NSString
  objc::Strong<objc::Object> basedOn;   // NSString, the name of the state applied before; nil: none
  objc::Strong<objc::Object> elements;  // NSArray of CAStateElement; nil: none
  double nextDelay = 0;                 // seconds
  double previousDelay = 0;             // seconds
  bool enabled = true;
  bool initial = false;  // the layer tree takes it on when it is first shown
  bool locked = false;

  static void registerClass();
};

}  // namespace sim
