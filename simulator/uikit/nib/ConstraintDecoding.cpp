#include "simulator/uikit/autolayout/NSLayoutConstraint.h"
#include "simulator/uikit/nib/Decoding.h"

namespace sim {
namespace {

using objc::Object;

constexpr float required = 1000;

// Newer systems have values of their own for what older ones have to approximate.
const char* current(const NibCoder& coder, const char* key, const char* older) {
  return coder.has(key) ? key : older;
}

Object initWithCoder(Object self, Object source) {
  const Object made = objc::sendSuper<Object, "init">(self.get(), NSLayoutConstraint::cls());
  if (!made) return nullptr;
  const NibCoder coder(source);
  NSLayoutConstraint& constraint = NSLayoutConstraint::of(made);
  constraint.firstItem = objc::weak(coder.object("NSFirstItem"));
  constraint.firstAttribute =
      coder.integer(current(coder, "NSFirstAttributeV2", "NSFirstAttribute"));
  constraint.secondItem = objc::weak(coder.object("NSSecondItem"));
  constraint.secondAttribute =
      coder.integer(current(coder, "NSSecondAttributeV2", "NSSecondAttribute"));
  constraint.relation = coder.integer("NSRelation");
  constraint.multiplier = coder.has("NSMultiplier") ? coder.number("NSMultiplier") : 1;
  constraint.constant =
      coder.number(coder.has("NSFirstAttributeV2") ? "NSConstantV2" : "NSConstant");
  constraint.priority = coder.has("NSPriority") ? float(coder.integer("NSPriority")) : required;
  constraint.identifier = objc::retain(coder.object("NSLayoutIdentifier"));
  return made;
}

}  // namespace

void addConstraintDecoding() {
  addInitWithCoder<&initWithCoder>("NSLayoutConstraint", "no symbolic constants");
}

}  // namespace sim
