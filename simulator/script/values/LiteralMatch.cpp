#include <cmath>

#include "objc/Message.h"
#include "simulator/foundation/Values.h"
#include "simulator/script/values/Literal.h"

namespace sim {
namespace {

bool isNilPointer(const Value& value) {
  return std::string_view("@#:*^?").find(value.type().kind) != std::string_view::npos &&
         value.as<void*>() == nullptr;
}

bool sameObject(objc::Object left, objc::Object right) {
  if (left == right) return true;
  return left && right && objc::respondsTo<"isEqual:">(left) &&
         objc::send<bool, "isEqual:">(left, right);
}

// Compares what a method gave with each kind of literal.
struct Matcher {
  const Value& found;
  double tolerance;

  bool operator()(Literal::Nil) const { return isNilPointer(found); }
  bool operator()(bool expected) const { return found.boolean() == expected; }
  bool operator()(Literal::Number expected) const {
    const auto number = found.number();
    if (!number) return false;
    // 0.1 is not the same number in both widths, but it is what the script's author means.
    const long double wanted =
        found.type().kind == 'f' ? static_cast<float>(expected.value) : expected.value;
    return std::fabs(*number - wanted) <= tolerance;
  }
  bool operator()(const std::string& expected) const {
    if (found.type().kind == '*')
      return found.as<const char*>() != nullptr && expected == found.as<const char*>();
    const objc::Object object = found.object();
    if (!object || isKindOf(object, "NSNumber")) return false;
    return (isKindOf(object, "NSString") ? text(object) : description(object)) == expected;
  }
  bool operator()(const Literal::Structure& expected) const {
    if (found.type().kind != '{' || found.type().members.size() != expected.size()) return false;
    for (std::size_t index = 0; index < expected.size(); ++index) {
      if (!matches(found.member(index), expected[index], tolerance)) return false;
    }
    return true;
  }
  bool operator()(SEL expected) const {
    return found.type().kind == ':' && found.as<SEL>() == expected;
  }
  bool operator()(const Value& expected) const {
    if (found.type().isObject() && expected.type().isObject())
      return sameObject(found.object(), expected.object());
    const auto left = found.number();
    const auto right = expected.number();
    if (left && right) return std::fabs(*left - *right) <= tolerance;
    return notation(found) == notation(expected);
  }
};

}  // namespace

bool matches(const Value& found, const Literal& expected, double tolerance) {
  return std::visit(Matcher{found, tolerance}, expected.content);
}

}  // namespace sim
