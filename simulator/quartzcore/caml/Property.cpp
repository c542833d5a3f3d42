#include "simulator/quartzcore/caml/Property.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <stdexcept>

#include "simulator/foundation/Boxing.h"
#include "simulator/foundation/TypeEncoding.h"
#include "simulator/foundation/Values.h"
#include "simulator/quartzcore/LayerKeyPath.h"
#include "simulator/quartzcore/caml/Text.h"

namespace sim::caml {
namespace {

using objc::Object;

struct Named {
  std::string_view key;
  Property property;
};

// What the type of an accessor leaves open. A key of object type that is not here is none for
// documents: a layer's delegate is an object, too.
constexpr std::array named{
    Named{"animation", {Kind::object, "CAAnimation"}},
    Named{"animations", {Kind::objects, "CAAnimation"}},
    Named{"backgroundColor", {Kind::color}},
    Named{"basedOn", {Kind::text}},
    Named{"borderColor", {Kind::color}},
    Named{"contents", {Kind::image}},
    Named{"contentsGravity", {Kind::text}},
    Named{"elements", {Kind::objects, "CAStateElement"}},
    Named{"fillColor", {Kind::color}},
    Named{"fillRule", {Kind::text}},
    Named{"fromState", {Kind::text}},
    Named{"key", {Kind::text}},
    Named{"keyPath", {Kind::text}},
    Named{"lineCap", {Kind::text}},
    Named{"lineDashPattern", {Kind::numbers}},
    Named{"lineJoin", {Kind::text}},
    Named{"mask", {Kind::object, "CALayer"}},
    Named{"name", {Kind::text}},
    Named{"object", {Kind::object, "CALayer"}},
    Named{"path", {Kind::path}},
    Named{"shadowColor", {Kind::color}},
    Named{"shadowPath", {Kind::path}},
    Named{"stateTransitions", {Kind::objects, "CAStateTransition"}},
    Named{"states", {Kind::objects, "CAState"}},
    Named{"strokeColor", {Kind::color}},
    Named{"sublayers", {Kind::objects, "CALayer"}},
    Named{"toState", {Kind::text}},
    Named{"value", {Kind::value}},
};

// A transition's elements are of a class of their own.
bool isTransitionElements(Object object, std::string_view key) {
  return key == "elements" && isKindOf(object, "CAStateTransition");
}

const Property* knownProperty(std::string_view key) {
  const auto found = std::lower_bound(
      named.begin(), named.end(), key,
      [](const Named& entry, std::string_view wanted) { return entry.key < wanted; });
  return found != named.end() && found->key == key ? &found->property : nullptr;
}

// Of the setter's argument; empty without a setter.
std::string setterType(Object object, std::string key) {
  key[0] = char(std::toupper(static_cast<unsigned char>(key[0])));
  const SEL setter = sel_registerName(("set" + key + ':').c_str());
  const Method method = class_getInstanceMethod(object_getClass(object.get()), setter);
  if (method == nullptr) return "";
  // "v@:d", perhaps with numbers between: result, receiver, selector, then the value.
  std::string_view types = method_getTypeEncoding(method);
  types.remove_prefix(std::min(types.find(':') + 1, types.size()));
  types.remove_prefix(std::min(types.find_first_not_of("0123456789"), types.size()));
  const auto type = firstType(types);
  return type ? type->text : "";
}

// Key-value coding reaches those, too: none of them is for documents.
bool isInstanceVariable(Object object, const std::string& key) {
  for (const std::string& name : {key, '_' + key}) {
    const Ivar ivar = class_getInstanceVariable(object_getClass(object.get()), name.c_str());
    if (ivar != nullptr && canBox(ivar_getTypeEncoding(ivar))) return true;
  }
  return false;
}

Property propertyOfType(std::string_view type, const std::string& key) {
  if (type.starts_with("{CGRect=")) return {Kind::rect};
  if (type.starts_with("{CGPoint=")) return {Kind::point};
  if (type.starts_with("{CGSize=")) return {Kind::size};
  if (type.starts_with("{CATransform3D=")) return {Kind::transform};
  if (type == "d" || type == "f") return {Kind::real};
  if (type == "B") return {Kind::flag};
  if (type == "q" || type == "Q" || type == "i" || type == "I") return {Kind::integer};
  throw std::invalid_argument("expected a property that can be read here, found " +
                              quotedWord(key));
}

// "transform.scale.x" and the like are numbers.
Property propertyOfPath(Object object, const std::string& keyPath) {
  if (isKindOf(object, "CALayer") && isLayerKeyPath(keyPath)) return {Kind::real};
  throw std::invalid_argument("expected the key path of a property, found " + quotedWord(keyPath));
}

}  // namespace

std::string Property::noun() const {
  switch (kind) {
    case Kind::real:
      return "a number";
    case Kind::integer:
      return "a whole number";
    case Kind::flag:
      return "0 or 1";
    case Kind::point:
      return "a point";
    case Kind::size:
      return "a size";
    case Kind::rect:
      return "a rectangle";
    case Kind::transform:
      return "a transform";
    case Kind::color:
      return "a colour";
    case Kind::path:
      return "a path";
    case Kind::numbers:
      return "numbers";
    case Kind::text:
      return "a text";
    case Kind::image:
      return "a CGImage";
    case Kind::object:
      return std::string("a ") + cls;
    case Kind::objects:
      return std::string("objects of the class ") + cls;
    case Kind::value:
    case Kind::unknown:
      break;
  }
  return "a number or a text";
}

Property propertyOf(Object object, const std::string& keyPath) {
  if (keyPath.find('.') != keyPath.npos) return propertyOfPath(object, keyPath);
  if (keyPath.empty()) throw std::invalid_argument("expected the name of a property");
  if (isTransitionElements(object, keyPath)) return {Kind::objects, "CAStateTransitionElement"};
  const std::string type = setterType(object, keyPath);
  const Property* known = knownProperty(keyPath);
  if (type.empty() && !isInstanceVariable(object, keyPath)) return {Kind::unknown};
  if (known != nullptr && type == "@") return *known;
  return propertyOfType(type, keyPath);
}

}  // namespace sim::caml
