// UIView: Auto Layout.
#include "objc/Message.h"
#include "simulator/foundation/Values.h"
#include "simulator/uikit/autolayout/Activation.h"
#include "simulator/uikit/autolayout/FittingSize.h"
#include "simulator/uikit/autolayout/LayoutEngine.h"
#include "simulator/uikit/autolayout/NSLayoutAnchor.h"
#include "simulator/uikit/autolayout/UpdateConstraints.h"
#include "simulator/uikit/autolayout/ViewConstraints.h"
#include "simulator/uikit/views/LayoutDirection.h"
#include "simulator/uikit/views/ViewMethods.h"

namespace sim {
namespace {

using objc::Object;

template <auto function>
void forEach(Object view, Object constraints) {
  const auto count = objc::send<unsigned long, "count">(constraints);
  for (unsigned long i = 0; i < count; ++i)
    function(view, objc::send<Object, "objectAtIndex:">(constraints, i));
}

Object constraints(Object view) {
  const ViewConstraints* its = existingConstraintsOf(view);
  if (its == nullptr) return array({});
  return array(std::vector<Object>(its->owned.begin(), its->owned.end()));
}

bool translates(Object view) {
  const ViewConstraints* its = existingConstraintsOf(view);
  return its == nullptr || its->translatesMask;
}
void setTranslates(Object view, bool value) {
  if (translates(view) == value) return;
  constraintsOf(view).translatesMask = value;
  constraintsOf(view).solved.reset();
  constraintsChanged(view);
}

template <auto priorities>
float priority(Object view, long axis) {
  return (constraintsOf(view).*priorities)[axis == 0 ? 0 : 1];
}
template <auto priorities>
void setPriority(Object view, float value, long axis) {
  float& kept = (constraintsOf(view).*priorities)[axis == 0 ? 0 : 1];
  if (kept == value) return;
  kept = value;
  if (!translates(view)) constraintsChanged(view);
}

UIEdgeInsets margins(Object view) {
  const ViewConstraints* its = existingConstraintsOf(view);
  return its == nullptr ? ViewConstraints().margins : its->margins;
}
void setMargins(Object view, UIEdgeInsets insets) {
  if (margins(view) == insets) return;
  constraintsOf(view).margins = insets;
  constraintsChanged(view);
}

// UIUserInterfaceLayoutDirection.
long layoutDirection(Object view) {
  return viewIsRightToLeft(view) ? 1 : 0;
}
long layoutDirectionFor(long semanticContentAttribute) {
  return isRightToLeftFor(semanticContentAttribute) ? 1 : 0;
}

// For subclasses.
void updateConstraints(Object) {}

CGSize fitting(Object view, CGSize target) {
  constexpr float fittingSizeLevel = 50;
  return fittingSize(view, target, fittingSizeLevel, fittingSizeLevel);
}

}  // namespace

void addAutoLayout(StandIn<UIView>& view) {
  view.method<"constraints", &constraints>()
      .method<"addConstraint:", &addConstraint>()
      .method<"addConstraints:", &forEach<&addConstraint>>()
      .method<"removeConstraint:", &removeConstraint>()
      .method<"removeConstraints:", &forEach<&removeConstraint>>()
      .method<"translatesAutoresizingMaskIntoConstraints", &translates>()
      .partial<"setTranslatesAutoresizingMaskIntoConstraints:", &setTranslates>(
          "a view that translates its mask is a constant: nothing inside it makes it larger")
      .method<"contentHuggingPriorityForAxis:", &priority<&ViewConstraints::hugging>>()
      .method<"setContentHuggingPriority:forAxis:", &setPriority<&ViewConstraints::hugging>>()
      .method<"contentCompressionResistancePriorityForAxis:",
              &priority<&ViewConstraints::resistance>>()
      .method<"setContentCompressionResistancePriority:forAxis:",
              &setPriority<&ViewConstraints::resistance>>()
      .method<"layoutMargins", &margins>()
      .partial<"setLayoutMargins:", &setMargins>("no safe area, none from the superview")
      .method<"updateConstraints", &updateConstraints>()
      .method<"setNeedsUpdateConstraints", &setNeedsUpdateConstraints>()
      .method<"needsUpdateConstraints", &needsUpdateConstraints>()
      .method<"updateConstraintsIfNeeded", &updateConstraintsIfNeeded>()
      .method<"systemLayoutSizeFittingSize:", &fitting>()
      .method<"systemLayoutSizeFittingSize:withHorizontalFittingPriority:verticalFittingPriority:",
              &fittingSize>()
      .method<"effectiveUserInterfaceLayoutDirection", &layoutDirection>()
      .classMethod<"userInterfaceLayoutDirectionForSemanticContentAttribute:",
                   &layoutDirectionFor>();
  addAnchors(view);
}

}  // namespace sim
