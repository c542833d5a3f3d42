#include "simulator/uikit/NSLayoutConstraint.h"

#include "simulator/StandIn.h"
#include "simulator/foundation/Kind.h"

namespace sim {
namespace {

using objc::Object;

template <auto which>
Object item(Object self) {
  return objc::autorelease((NSLayoutConstraint::of(self).*which).load());
}

void setAll(Object constraints, bool active) {
  const auto count = objc::send<unsigned long, "count">(constraints);
  for (unsigned long i = 0; i < count; ++i)
    objc::send<void, "setActive:">(objc::send<Object, "objectAtIndex:">(constraints, i), active);
}

void activate(Object constraints) {
  setAll(constraints, true);
}
void deactivate(Object constraints) {
  setAll(constraints, false);
}

}  // namespace

Object NSLayoutConstraint::make(id cls, Object first, long firstAttribute, long relation,
                                Object second, long secondAttribute, double multiplier,
                                double constant) {
  auto made = makeOf(cls);
  NSLayoutConstraint& state = of(made.get());
  state.firstItem = objc::weak(first);
  state.secondItem = objc::weak(second);
  state.firstAttribute = firstAttribute;
  state.secondAttribute = secondAttribute;
  state.relation = relation;
  state.multiplier = multiplier;
  state.constant = constant;
  return objc::autorelease(std::move(made));
}

void NSLayoutConstraint::registerClass() {
  constexpr const char* unsolved = "moves nothing";
  StandIn<NSLayoutConstraint>("UIKit", "NSLayoutConstraint", "NSObject")
      .factory<"constraintWithItem:attribute:relatedBy:toItem:attribute:multiplier:constant:",
               &NSLayoutConstraint::make>()
      .partialClassMethod<"activateConstraints:", &activate>(unsolved)
      .partialClassMethod<"deactivateConstraints:", &deactivate>(unsolved)
      .method<"firstItem", &item<&NSLayoutConstraint::firstItem>>()
      .method<"secondItem", &item<&NSLayoutConstraint::secondItem>>()
      .readonlyProperty<"firstAttribute", &NSLayoutConstraint::firstAttribute>()
      .readonlyProperty<"secondAttribute", &NSLayoutConstraint::secondAttribute>()
      .readonlyProperty<"relation", &NSLayoutConstraint::relation>()
      .readonlyProperty<"multiplier", &NSLayoutConstraint::multiplier>()
      .property<"constant", &NSLayoutConstraint::constant>()
      .property<"priority", &NSLayoutConstraint::priority>()
      .property<"identifier", &NSLayoutConstraint::identifier>()
      .property<"active", &NSLayoutConstraint::active>()
      .readonlyProperty<"isActive", &NSLayoutConstraint::active>()
      .finish();
}

}  // namespace sim
