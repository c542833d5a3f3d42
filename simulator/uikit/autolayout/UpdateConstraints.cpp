#include "simulator/uikit/autolayout/UpdateConstraints.h"

#include <utility>

#include "objc/Message.h"
#include "simulator/uikit/autolayout/LayoutEngine.h"
#include "simulator/uikit/autolayout/ViewConstraints.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {

using objc::Object;

void setNeedsUpdateConstraints(Object view) {
  constraintsOf(view).needsUpdate = true;
  constraintsChanged(view);
}

void viewDidMoveToWindow(Object view) {
  const SEL name = objc::selector<"updateConstraints">();
  const IMP its = class_getMethodImplementation(object_getClass(view.get()), name);
  if (its == class_getMethodImplementation(UIView::cls(), name)) return;
  if (!std::exchange(constraintsOf(view).hasBeenInWindow, true)) setNeedsUpdateConstraints(view);
}

bool needsUpdateConstraints(Object view) {
  const ViewConstraints* its = existingConstraintsOf(view);
  return its != nullptr && its->needsUpdate;
}

void updateConstraintsIfNeeded(Object view) {
  const auto kept = objc::retain(view);
  const auto children = UIView::of(view).children;
  for (const auto& child : children) updateConstraintsIfNeeded(child);
  ViewConstraints* its = existingConstraintsOf(view);
  if (its != nullptr && std::exchange(its->needsUpdate, false))
    objc::send<void, "updateConstraints">(view);
}

}  // namespace sim
