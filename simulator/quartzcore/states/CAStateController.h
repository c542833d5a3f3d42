// Switches a layer tree from one of its states to another.
#pragma once

#include "objc/Class.h"
#include "simulator/quartzcore/states/CAStateElement.h"

namespace sim {

struct CAStateController : objc::Implementation<CAStateController> {
  objc::Strong<objc::Object> layer;    // the tree's root
  objc::Strong<objc::Object> current;  // CAState; nil before the first
  std::vector<StateUndo> changes;  // that lead from the tree as it was made to the current state

  objc::Object initWithLayer(objc::Object root);
  objc::Object stateOfLayer(objc::Object root) const;
  // nil takes back what the current state has changed.
  void setState(objc::Object state, objc::Object root);
  // The state that is marked as initial, if there is one.
  void setInitialStates(objc::Object root);

  static void registerClass();

 private:
  void apply(objc::Object state, int depth);
};

}  // namespace sim
