#include "simulator/uikit/autolayout/ViewConstraints.h"

#include "simulator/uikit/views/UIView.h"

namespace sim {

ViewConstraints& constraintsOf(objc::Object view) {
  auto& constraints = UIView::of(view).constraints;
  if (!constraints) constraints = std::make_unique<ViewConstraints>();
  return *constraints;
}

ViewConstraints* existingConstraintsOf(objc::Object view) {
  return UIView::of(view).constraints.get();
}

bool isPlacedByConstraints(objc::Object view) {
  const UIView& state = UIView::of(view);
  return state.constraints && !state.constraints->translatesMask && state.parent;
}

}  // namespace sim
