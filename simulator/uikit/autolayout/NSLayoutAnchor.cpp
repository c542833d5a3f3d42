#include "simulator/uikit/autolayout/NSLayoutAnchor.h"

#include "objc/Message.h"
#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Values.h"
#include "simulator/uikit/autolayout/Attributes.h"
#include "simulator/uikit/autolayout/NSLayoutConstraint.h"

namespace sim {
namespace {

using objc::Object;

struct NSLayoutXAxisAnchor : objc::Implementation<NSLayoutXAxisAnchor> {};
struct NSLayoutYAxisAnchor : objc::Implementation<NSLayoutYAxisAnchor> {};
struct NSLayoutDimension : objc::Implementation<NSLayoutDimension> {};

constexpr long atMost = -1, equal = 0, atLeast = 1;

// Anchors of one kind alone can be compared.
void checkKinds(Object anchor, Object other) {
  if (object_getClass(anchor.get()) == object_getClass(other.get())) return;
  raiseException("NSInvalidArgumentException",
                 std::string("Invalid pairing of layout attributes: ") +
                     object_getClassName(anchor.get()) + " and " +
                     (other ? object_getClassName(other.get()) : "nil"));
}

template <long relation>
Object toAnchor(Object self, Object other, double multiplier, double constant) {
  checkKinds(self, other);
  const NSLayoutAnchor& first = NSLayoutAnchor::of(self);
  const NSLayoutAnchor& second = NSLayoutAnchor::of(other);
  return NSLayoutConstraint::make(reinterpret_cast<id>(NSLayoutConstraint::cls()),
                                  first.item.load().get(), first.attribute, relation,
                                  second.item.load().get(), second.attribute, multiplier, constant);
}
template <long relation>
Object toAnchorAlone(Object self, Object other) {
  return toAnchor<relation>(self, other, 1, 0);
}
template <long relation>
Object toAnchorWithConstant(Object self, Object other, double constant) {
  return toAnchor<relation>(self, other, 1, constant);
}
template <long relation>
Object toAnchorWithMultiplier(Object self, Object other, double multiplier) {
  return toAnchor<relation>(self, other, multiplier, 0);
}
template <long relation>
Object toConstant(Object self, double constant) {
  const NSLayoutAnchor& first = NSLayoutAnchor::of(self);
  return NSLayoutConstraint::make(reinterpret_cast<id>(NSLayoutConstraint::cls()),
                                  first.item.load().get(), first.attribute, relation, nullptr,
                                  attribute::none, 1, constant);
}

Object itemOf(Object self) {
  return objc::autorelease(NSLayoutAnchor::of(self).item.load());
}

template <class Kind, long which>
Object anchor(Object view) {
  auto made = Kind::make();
  if (!made) return nullptr;  // left out of the phone
  NSLayoutAnchor::of(made.get()).item = objc::weak(view);
  NSLayoutAnchor::of(made.get()).attribute = which;
  return objc::autorelease(std::move(made));
}

void registerDimension() {
  StandIn<NSLayoutDimension>("UIKit", "NSLayoutDimension", "NSLayoutAnchor")
      .method<"constraintEqualToConstant:", &toConstant<equal>>()
      .method<"constraintGreaterThanOrEqualToConstant:", &toConstant<atLeast>>()
      .method<"constraintLessThanOrEqualToConstant:", &toConstant<atMost>>()
      .method<"constraintEqualToAnchor:multiplier:", &toAnchorWithMultiplier<equal>>()
      .method<"constraintGreaterThanOrEqualToAnchor:multiplier:",
              &toAnchorWithMultiplier<atLeast>>()
      .method<"constraintLessThanOrEqualToAnchor:multiplier:", &toAnchorWithMultiplier<atMost>>()
      .method<"constraintEqualToAnchor:multiplier:constant:", &toAnchor<equal>>()
      .method<"constraintGreaterThanOrEqualToAnchor:multiplier:constant:", &toAnchor<atLeast>>()
      .method<"constraintLessThanOrEqualToAnchor:multiplier:constant:", &toAnchor<atMost>>()
      .finish();
}

}  // namespace

void NSLayoutAnchor::registerClasses() {
  StandIn<NSLayoutAnchor>("UIKit", "NSLayoutAnchor", "NSObject")
      .method<"item", &itemOf>()
      .method<"constraintEqualToAnchor:", &toAnchorAlone<equal>>()
      .method<"constraintGreaterThanOrEqualToAnchor:", &toAnchorAlone<atLeast>>()
      .method<"constraintLessThanOrEqualToAnchor:", &toAnchorAlone<atMost>>()
      .method<"constraintEqualToAnchor:constant:", &toAnchorWithConstant<equal>>()
      .method<"constraintGreaterThanOrEqualToAnchor:constant:", &toAnchorWithConstant<atLeast>>()
      .method<"constraintLessThanOrEqualToAnchor:constant:", &toAnchorWithConstant<atMost>>()
      .finish();
  StandIn<NSLayoutXAxisAnchor>("UIKit", "NSLayoutXAxisAnchor", "NSLayoutAnchor").finish();
  StandIn<NSLayoutYAxisAnchor>("UIKit", "NSLayoutYAxisAnchor", "NSLayoutAnchor").finish();
  registerDimension();
}

void addAnchors(StandIn<UIView>& view) {
  using X = NSLayoutXAxisAnchor;
  using Y = NSLayoutYAxisAnchor;
  using Length = NSLayoutDimension;
  view.method<"leftAnchor", &anchor<X, attribute::left>>()
      .method<"rightAnchor", &anchor<X, attribute::right>>()
      .method<"leadingAnchor", &anchor<X, attribute::leading>>()
      .method<"trailingAnchor", &anchor<X, attribute::trailing>>()
      .method<"centerXAnchor", &anchor<X, attribute::centerX>>()
      .method<"topAnchor", &anchor<Y, attribute::top>>()
      .method<"bottomAnchor", &anchor<Y, attribute::bottom>>()
      .method<"centerYAnchor", &anchor<Y, attribute::centerY>>()
      .method<"firstBaselineAnchor", &anchor<Y, attribute::firstBaseline>>()
      .method<"lastBaselineAnchor", &anchor<Y, attribute::lastBaseline>>()
      .method<"widthAnchor", &anchor<Length, attribute::width>>()
      .method<"heightAnchor", &anchor<Length, attribute::height>>();
}

}  // namespace sim
