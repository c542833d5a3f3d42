#include "simulator/uikit/autolayout/Activation.h"

#include <algorithm>

#include "objc/Message.h"
#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/uikit/autolayout/LayoutEngine.h"
#include "simulator/uikit/autolayout/NSLayoutConstraint.h"
#include "simulator/uikit/autolayout/ViewConstraints.h"
#include "simulator/uikit/views/UIView.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {
namespace {

using objc::Object;

struct Activations {
  unsigned long count = 0;
};

// A corrupt layout may bring anything.
void requireViews(const NSLayoutConstraint& constraint) {
  for (const auto* item : {&constraint.firstItem, &constraint.secondItem}) {
    const auto loaded = item->load();
    if (loaded && !isA<UIView>(loaded)) raiseWrongClass("addConstraint:", loaded, "UIView");
  }
}

}  // namespace

void addConstraint(Object view, Object constraint) {
  if (!constraint) return;
  if (!isA<NSLayoutConstraint>(constraint))
    raiseWrongClass("addConstraint:", constraint, "NSLayoutConstraint");
  NSLayoutConstraint& state = NSLayoutConstraint::of(constraint);
  requireViews(state);
  const auto kept = objc::retain(constraint);
  const auto before = state.owner.load();
  if (before == view) return;
  if (before) removeConstraint(before, constraint);
  constraintsOf(view).owned.push_back(kept);
  state.owner = objc::weak(view);
  state.activation = ++Phone::current().state<Activations>().count;
  constraintsChanged(view);
}

void removeConstraint(Object view, Object constraint) {
  ViewConstraints* its = view ? existingConstraintsOf(view) : nullptr;
  if (its == nullptr) return;
  const auto kept = objc::retain(constraint);  // the view may own it alone
  const auto isThis = [&](const auto& each) { return each.get() == constraint; };
  if (std::erase_if(its->owned, isThis) == 0) return;
  NSLayoutConstraint::of(constraint).owner = objc::Weak<Object>();
  constraintsChanged(view);
}

void setConstraintActive(Object constraint, bool active) {
  NSLayoutConstraint& state = NSLayoutConstraint::of(constraint);
  if (state.isActive() == active) return;
  if (!active) return removeConstraint(state.owner.load().get(), constraint);
  requireViews(state);
  const auto first = state.firstItem.load(), second = state.secondItem.load();
  const Object owner = second ? commonAncestor(first, second) : first;
  if (!owner)
    raiseException("NSGenericException",
                   "Unable to activate constraint with items " + description(first) + " and " +
                       description(second) +
                       " because they have no common ancestor. Does the constraint or its items "
                       "reference items in different view hierarchies?");
  addConstraint(owner, constraint);
}

void dropConstraintsAcross(Object view) {
  const auto isInside = [view](const objc::Weak<Object>& item) {
    const auto loaded = item.load();
    return loaded && isDescendant(loaded, view);
  };
  for (Object above = UIView::of(view).parent; above; above = UIView::of(above).parent) {
    const ViewConstraints* its = existingConstraintsOf(above);
    if (its == nullptr) continue;
    const auto owned = its->owned;
    for (const auto& each : owned) {
      const NSLayoutConstraint& state = NSLayoutConstraint::of(each.get());
      if (isInside(state.firstItem) || isInside(state.secondItem))
        removeConstraint(above, each.get());
    }
  }
}

}  // namespace sim
