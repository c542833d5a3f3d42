#include "simulator/quartzcore/caml/ObjectReader.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/quartzcore/CAAnimation.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/quartzcore/caml/Error.h"
#include "simulator/quartzcore/caml/Text.h"
#include "simulator/quartzcore/states/CAStateElement.h"
#include "simulator/quartzcore/states/CAStateTransition.h"

namespace sim::caml {
namespace {

using objc::Object;
using objc::Strong;
using std::string_view;

// Attributes of an element that are no properties of the object.
constexpr std::array reserved{"id", "type", "object", "key", "targetId"};

bool isProperty(string_view attribute, Object object) {
  if (attribute == "key") return objc::respondsTo<"setKey:">(object);
  return attribute.find(':') == attribute.npos && attribute != "xmlns" &&
         std::find(reserved.begin(), reserved.end(), attribute) == reserved.end();
}

[[noreturn]] void fail(pugi::xml_node element, const std::string& problem) {
  throw Error(std::size_t(std::max<std::ptrdiff_t>(element.offset_debug(), 0)), problem);
}

// Gives errors about values their place.
template <class Work>
auto at(pugi::xml_node place, Work work) {
  try {
    return work();
  } catch (const std::invalid_argument& problem) {
    fail(place, problem.what());
  }
}

std::vector<pugi::xml_node> elementsOf(pugi::xml_node element) {
  std::vector<pugi::xml_node> elements;
  for (const pugi::xml_node child : element.children())
    if (child.type() == pugi::node_element) elements.push_back(child);
  return elements;
}

// The classes have had another prefix once, which files still use.
std::string currentName(std::string name) {
  if (name.starts_with("LK")) name.replace(0, 2, "CA");
  return name;
}

// <CALayer …>, or <o type="CALayer" …>, or the element of a property with its class as type.
std::string classOf(pugi::xml_node element) {
  const char* type = element.attribute("type").value();
  return currentName(*type != '\0' ? type : element.name());
}

bool canBeRead(Class cls) {
  constexpr std::array bases{
      "CALayer",    "CAState", "CAStateElement", "CAStateTransition", "CAStateTransitionElement",
      "CAAnimation"};
  for (; cls != nullptr; cls = class_getSuperclass(cls))
    if (std::find(bases.begin(), bases.end(), string_view(class_getName(cls))) != bases.end())
      return true;
  return false;
}

// The types of values that are no objects of such a class; any other name is that of a class.
const Property* valueType(string_view name) {
  struct Type {
    string_view name;
    Property property;
  };
  static constexpr Type types[] = {
      {"real", {Kind::real}},     {"float", {Kind::real}},
      {"double", {Kind::real}},   {"integer", {Kind::integer}},
      {"int", {Kind::integer}},   {"bool", {Kind::flag}},
      {"boolean", {Kind::flag}},  {"string", {Kind::text}},
      {"NSString", {Kind::text}}, {"NSNumber", {Kind::real}},
      {"CGPoint", {Kind::point}}, {"CGSize", {Kind::size}},
      {"CGRect", {Kind::rect}},   {"CGColor", {Kind::color}},
      {"CGPath", {Kind::path}},   {"CATransform3D", {Kind::transform}},
  };
  for (const Type& type : types)
    if (type.name == name) return &type.property;
  return nullptr;
}

// The value attribute, or what stands between the tags.
std::string_view textOf(pugi::xml_node element) {
  const pugi::xml_attribute value = element.attribute("value");
  return value ? value.value() : element.child_value();
}

// A colour's alpha has an attribute of its own.
Object scalar(const Property& property, pugi::xml_node element) {
  const Object value = valueOf(property, textOf(element));
  const pugi::xml_attribute opacity = element.attribute("opacity");
  if (property.kind != Kind::color || !opacity || !value) return value;
  const double alpha = realOf(opacity.value());
  if (alpha < 0 || alpha > 1)
    throw std::invalid_argument("expected an opacity from 0 to 1, found " +
                                quotedWord(opacity.value()));
  CGColor::of(value).color.values[3] *= alpha;
  return value;
}

}  // namespace

Strong<Object> ObjectReader::object(pugi::xml_node element) {
  return make(element, classOf(element));
}

Strong<Object> ObjectReader::make(pugi::xml_node element, const std::string& className) {
  constexpr int most = 10'000;
  constexpr int deepest = 64;
  if (++objects_ > most) fail(element, "expected at most 10000 objects");
  if (depth_ >= deepest) fail(element, "expected at most 64 objects in one another");
  Class cls = objc_getClass(className.c_str());
  if (cls == nullptr) fail(element, "there is no class " + quotedWord(className));
  if (!canBeRead(cls)) fail(element, "a " + className + " cannot be read from a document");
  Strong<Object> made = objc::adopt(Object(objc_alloc_init(cls)));
  registerId(made, element);
  setAttributes(made, element);
  const bool isState = isKindOf(made.get(), "CAState");
  ++depth_;
  statesAround_ += isState;
  for (const pugi::xml_node child : elementsOf(element)) setChild(made, child);
  statesAround_ -= isState;
  --depth_;
  return made;
}

void ObjectReader::registerId(Object object, pugi::xml_node element) {
  const std::string id = element.attribute("id").value();
  if (id.empty() || statesAround_ > 0 || !isA<CALayer>(object)) return;
  if (!layers_.emplace(id, objc::retain(object)).second)
    fail(element, "expected an id of its own, found another " + quotedWord(id));
}

void ObjectReader::setAttributes(Object object, pugi::xml_node element) {
  const bool isTransition = isA<CAStateTransitionElement>(object);
  if (isTransition || isA<CAStateElement>(object))
    references_.push_back({objc::retain(object), element.attribute("targetId").value(), element});
  for (const pugi::xml_attribute attribute : element.attributes()) {
    const std::string key = attribute.name();
    if (!isProperty(key, object)) continue;
    at(element, [&] {
      const Property property = propertyOf(object, key);
      set(object, key, property, valueOf(property, attribute.value()), element);
    });
  }
}

// <fillColor …/>, or <p key="fillColor" …/>.
void ObjectReader::setChild(Object object, pugi::xml_node element) {
  const bool isLong = element.name() == string_view("p");
  const std::string key = isLong ? element.attribute("key").value() : element.name();
  const bool isClass = (key[0] >= 'A' && key[0] <= 'Z') || key == "o";
  if (isClass) fail(element, "expected a property, found an object: " + quotedWord(key));
  at(element, [&] {
    const Property property = propertyOf(object, key);
    set(object, key, property, propertyValue(property, element), element);
  });
}

void ObjectReader::set(Object object, const std::string& key, const Property& property,
                       Object value, pugi::xml_node place) {
  if (!isValueOf(property, value)) fail(place, "expected " + property.noun() + " as " + key);
  if (property.kind != Kind::unknown)
    objc::send<void, "setValue:forKey:">(object, value, string(key));
  else if (isA<CALayer>(object) || isA<CAAnimation>(object))
    objc::send<void, "setValue:forUndefinedKey:">(object, value, string(key));
}

Object ObjectReader::propertyValue(const Property& property, pugi::xml_node element) {
  const std::vector<pugi::xml_node> inner = elementsOf(element);
  if (property.kind == Kind::objects) return objectList(element);
  if (element.attribute("type")) return typedValue(element);
  if (element.attribute("value") || inner.empty()) return scalar(property, element);
  if (inner.size() > 1) fail(inner[1], "expected one value, found a second one");
  return typedValue(inner[0]);
}

Object ObjectReader::objectList(pugi::xml_node element) {
  std::vector<Object> made;
  ++depth_;
  for (const pugi::xml_node each : elementsOf(element)) made.push_back(autorelease(object(each)));
  --depth_;
  return array(made);
}

Object ObjectReader::typedValue(pugi::xml_node element) {
  const std::string name = classOf(element);
  if (name == "CGImage") return image(element);
  if (const Property* type = valueType(name)) return scalar(*type, element);
  return autorelease(make(element, name));
}

// Never from outside the folder.
Object ObjectReader::image(pugi::xml_node element) {
  const std::string source = element.attribute("src").value();
  if (source.empty() || source.front() == '/' || source.find("..") != source.npos)
    fail(element, "expected a src inside the package, found " + quotedWord(source));
  const Object image = objc::send<Object, "imageWithContentsOfFile:">(
      objc_getClass("UIImage"), string(folder_ + '/' + source));
  if (!image) fail(element, "there is no image " + quotedWord(source));
  return image;
}

void ObjectReader::connect() {
  for (const Reference& reference : references_) connect(reference);
}

void ObjectReader::connect(const Reference& reference) {
  const auto found = layers_.find(reference.id);
  if (found == layers_.end())
    fail(reference.element, "there is no layer with the id " + quotedWord(reference.id));
  const Object target = found->second;
  objc::send<void, "setTarget:">(reference.source.get(), target);
  const auto* change = stateOf<CAStateSetValue>(reference.source.get());
  if (change == nullptr) return;
  const std::string keyPath = text(change->keyPath);
  const Property property = at(reference.element, [&] { return propertyOf(target, keyPath); });
  const bool isTree = property.kind == Kind::object || property.kind == Kind::objects;
  if (isTree || !isValueOf(property, change->value))
    fail(reference.element, isTree ? "expected a value to be set, found " + quotedWord(keyPath)
                                   : "expected " + property.noun() + " for " + keyPath);
}

}  // namespace sim::caml
