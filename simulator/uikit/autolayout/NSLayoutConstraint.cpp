#include "simulator/uikit/autolayout/NSLayoutConstraint.h"

#include <cmath>

#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/autolayout/Activation.h"
#include "simulator/uikit/autolayout/Attributes.h"
#include "simulator/uikit/autolayout/LayoutEngine.h"

namespace sim {
namespace {

using objc::Object;

constexpr float required = 1000;

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

Object descriptionOf(Object self) {
  return string(NSLayoutConstraint::of(self).description());
}

std::string shortNumber(double value) {
  return notation(number(value));
}

std::string itemAndAttribute(Object item, long attribute) {
  return std::string(object_getClassName(item.get())) + '.' + attribute::name(attribute);
}

void checkFinite(const char* what, double value) {
  if (std::isfinite(value)) return;
  raiseException(
      "NSInvalidArgumentException",
      std::string(what) + " is not finite!  That's illegal.  " + what + ':' + shortNumber(value));
}

const char* relationName(long relation) {
  return relation < 0 ? " <= " : relation > 0 ? " >= " : " == ";
}

// What is a coordinate needs another one to be compared with.
void checkPair(Object second, long firstAttribute, double multiplier) {
  if ((second && multiplier != 0) || attribute::isLength(firstAttribute)) return;
  raiseException("NSInvalidArgumentException",
                 "NSLayoutConstraint for a location: A multiplier of 0 or a nil second item "
                 "together with a location for the first attribute creates an illegal constraint "
                 "of a location equal to a constant. Location attributes must be specified in "
                 "pairs.");
}

}  // namespace

Object NSLayoutConstraint::make(id cls, Object first, long firstAttribute, long relation,
                                Object second, long secondAttribute, double multiplier,
                                double constant) {
  checkPair(second, firstAttribute, multiplier);
  checkFinite("Multiplier", multiplier);
  checkFinite("Constant", constant);
  auto made = makeOf(cls);
  NSLayoutConstraint& state = of(made.get());
  state.firstItem = objc::weak(first);
  state.secondItem = objc::weak(second);
  state.firstAttribute = firstAttribute;
  state.secondAttribute = second ? secondAttribute : attribute::none;
  state.relation = relation;
  state.multiplier = multiplier;
  state.constant = constant;
  return objc::autorelease(std::move(made));
}

void NSLayoutConstraint::changed() {
  isReportedBroken = false;
  if (const auto its = owner.load()) constraintsChanged(its);
}

void NSLayoutConstraint::setConstant(double points) {
  checkFinite("Constant", points);
  if (constant == points) return;
  constant = points;
  changed();
}

void NSLayoutConstraint::setPriority(float value) {
  if (priority == value) return;
  if (isActive() && (priority == required || value == required))
    raiseException("NSInternalInconsistencyException",
                   "Mutating a priority from required to not on an installed constraint (or vice-"
                   "versa) is not supported. You passed priority " +
                       shortNumber(double(value)) + " and the existing priority was " +
                       shortNumber(double(priority)) + ".");
  priority = value;
  changed();
}

// "<NSLayoutConstraint 'gap' UILabel.leading >= UIImageView.trailing * 0.5 + 6 @ 250>"
std::string NSLayoutConstraint::description() const {
  const auto first = firstItem.load(), second = secondItem.load();
  std::string all = "<NSLayoutConstraint ";
  if (identifier) all += '\'' + text(identifier) + "' ";
  all += first ? itemAndAttribute(first, firstAttribute) : "(gone)";
  all += relationName(relation);
  if (second) all += itemAndAttribute(second, secondAttribute);
  if (second && multiplier != 1) all += " * " + shortNumber(multiplier);
  if (!second) all += shortNumber(constant);
  if (second && constant != 0)
    all += (constant < 0 ? " - " : " + ") + shortNumber(constant < 0 ? -constant : constant);
  if (priority != required) all += " @ " + shortNumber(double(priority));
  return all + '>';
}

void NSLayoutConstraint::registerClass() {
  StandIn<NSLayoutConstraint>("UIKit", "NSLayoutConstraint", "NSObject")
      .factory<"constraintWithItem:attribute:relatedBy:toItem:attribute:multiplier:constant:",
               &NSLayoutConstraint::make>()
      .classMethod<"activateConstraints:", &activate>()
      .classMethod<"deactivateConstraints:", &deactivate>()
      .method<"firstItem", &item<&NSLayoutConstraint::firstItem>>()
      .method<"secondItem", &item<&NSLayoutConstraint::secondItem>>()
      .readonlyProperty<"firstAttribute", &NSLayoutConstraint::firstAttribute>()
      .readonlyProperty<"secondAttribute", &NSLayoutConstraint::secondAttribute>()
      .readonlyProperty<"relation", &NSLayoutConstraint::relation>()
      .readonlyProperty<"multiplier", &NSLayoutConstraint::multiplier>()
      .readonlyProperty<"constant", &NSLayoutConstraint::constant>()
      .method<"setConstant:", &NSLayoutConstraint::setConstant>()
      .readonlyProperty<"priority", &NSLayoutConstraint::priority>()
      .method<"setPriority:", &NSLayoutConstraint::setPriority>()
      .property<"identifier", &NSLayoutConstraint::identifier>()
      .method<"isActive", &NSLayoutConstraint::isActive>()
      .method<"active", &NSLayoutConstraint::isActive>()
      .partial<"setActive:", &setConstraintActive>(
          "of contradictory ones the newest breaks, and what is ambiguous is as small as possible: "
          "the platform's own choices are not known")
      .partial<"description", &descriptionOf>("without addresses")
      .finish();
}

}  // namespace sim
