#include <algorithm>

#include "objc/Association.h"
#include "simulator/foundation/Values.h"
#include "simulator/uikit/nib/Decoding.h"

namespace sim {
namespace {

using objc::Object;

constexpr float usualHugging = 250, usualResistance = 750;

// Attached to a view when anything of it is set.
struct ViewConstraints : objc::Implementation<ViewConstraints> {
  std::vector<objc::Strong<Object>> constraints;
  bool translatesMask = true;
  float hugging[2] = {usualHugging, usualHugging};  // horizontal, vertical
  float resistance[2] = {usualResistance, usualResistance};
};

using Attached = objc::Association<"sim_viewConstraints", Object>;

ViewConstraints& of(Object view) {
  if (!Attached::get(view)) Attached::set(view, ViewConstraints::make().get());
  return ViewConstraints::of(Attached::get(view));
}

// Adding the same one twice adds it once.
void add(Object view, Object constraint) {
  auto& all = of(view).constraints;
  const auto isSame = [&](const auto& each) { return each.get().get() == constraint.get(); };
  if (!constraint || std::any_of(all.begin(), all.end(), isSame)) return;
  all.push_back(objc::retain(constraint));
  objc::send<void, "setActive:">(constraint, true);
}

void remove(Object view, Object constraint) {
  auto& all = of(view).constraints;
  const auto kept = objc::retain(constraint);  // the view may own it alone
  const auto isSame = [&](const auto& each) { return each.get().get() == constraint.get(); };
  if (std::erase_if(all, isSame) != 0) objc::send<void, "setActive:">(constraint, false);
}

Object constraints(Object view) {
  const auto& all = of(view).constraints;
  return array(std::vector<Object>(all.begin(), all.end()));
}

bool translates(Object view) {
  return of(view).translatesMask;
}
void setTranslates(Object view, bool value) {
  of(view).translatesMask = value;
}

template <auto priorities>
float priority(Object view, long axis) {
  return (of(view).*priorities)[axis == 0 ? 0 : 1];
}
template <auto priorities>
void setPriority(Object view, float value, long axis) {
  (of(view).*priorities)[axis == 0 ? 0 : 1] = value;
}

template <objc::FixedString Name, auto function>
void addMethod() {
  if (FidelityPage("UIKit", "UIView")
          .record('-', Name.c_str(), {Grade::partial, "constraints move nothing"}))
    objc::addMethod<Name, function>(objc_getClass("UIView"));
}

}  // namespace

void addViewConstraints() {
  StandIn<ViewConstraints>("UIKit", "sim_ViewConstraints", "NSObject").finish();
  addMethod<"addConstraint:", &add>();
  addMethod<"removeConstraint:", &remove>();
  addMethod<"constraints", &constraints>();
  addMethod<"translatesAutoresizingMaskIntoConstraints", &translates>();
  addMethod<"setTranslatesAutoresizingMaskIntoConstraints:", &setTranslates>();
  addMethod<"contentHuggingPriorityForAxis:", &priority<&ViewConstraints::hugging>>();
  addMethod<"setContentHuggingPriority:forAxis:", &setPriority<&ViewConstraints::hugging>>();
  addMethod<"contentCompressionResistancePriorityForAxis:",
            &priority<&ViewConstraints::resistance>>();
  addMethod<"setContentCompressionResistancePriority:forAxis:",
            &setPriority<&ViewConstraints::resistance>>();
}

}  // namespace sim
