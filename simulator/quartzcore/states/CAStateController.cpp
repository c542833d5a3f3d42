#include "simulator/quartzcore/states/CAStateController.h"

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSArray.h"
#include "simulator/foundation/Values.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/quartzcore/states/CAState.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

void setStateAtSpeed(Object self, Object state, Object root, float) {
  CAStateController::of(self).setState(state, root);
}

}  // namespace

Object CAStateController::initWithLayer(Object root) {
  layer = objc::retain(root);
  return Object(self());
}

Object CAStateController::stateOfLayer(Object root) const {
  return root == layer.get() ? current.get() : Object();
}

void CAStateController::setState(Object state, Object root) {
  if (!root || root != layer.get()) return;
  for (auto change = changes.rbegin(); change != changes.rend(); ++change) undo(*change);
  changes.clear();
  current = objc::retain(state);
  apply(state, 0);
}

// States may be based on each other in a circle: nobody builds on more than a few.
void CAStateController::apply(Object state, int depth) {
  constexpr int deepest = 16;
  const CAState* look = stateOf<CAState>(state);
  if (look == nullptr || !look->enabled || depth > deepest) return;
  if (look->basedOn) apply(CALayer::of(layer.get()).stateWithName(look->basedOn), depth + 1);
  const NSArray* elements = stateOf<NSArray>(look->elements);
  if (elements == nullptr) return;
  for (const auto& element : elements->elements)
    for (StateUndo& change : applyStateElement(element)) changes.push_back(std::move(change));
}

void CAStateController::setInitialStates(Object root) {
  const CALayer* tree = stateOf<CALayer>(root);
  const NSArray* states = tree != nullptr ? stateOf<NSArray>(tree->states) : nullptr;
  if (states == nullptr) return;
  for (const auto& state : states->elements)
    if (CAState::of(state.get()).initial) return setState(state, root);
}

void CAStateController::registerClass() {
  constexpr const char* difference = "one tree only; the change is complete at once";
  StandIn<CAStateController>("QuartzCore", "CAStateController", "NSObject")
      .method<"initWithLayer:", &CAStateController::initWithLayer>()
      .readonlyProperty<"layer", &CAStateController::layer>()
      .method<"stateOfLayer:", &CAStateController::stateOfLayer>()
      .partial<"setState:ofLayer:", &CAStateController::setState>(difference)
      .partial<"setState:ofLayer:transitionSpeed:", &setStateAtSpeed>(difference)
      .partial<"setInitialStatesOfLayer:", &CAStateController::setInitialStates>(difference)
      .finish();
}

}  // namespace sim
