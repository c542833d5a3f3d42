// Values of properties: from their texts, and whether an object is one.
#include <stdexcept>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSArray.h"
#include "simulator/foundation/NSNumber.h"
#include "simulator/foundation/NSValue.h"
#include "simulator/foundation/Values.h"
#include "simulator/quartzcore/caml/Property.h"
#include "simulator/quartzcore/caml/Text.h"

namespace sim::caml {
namespace {

using objc::Object;

template <class Structure>
Object structure(const Structure& value) {
  return sim::valueOf(&value, objc::encoding<Structure>.c_str());
}

// As many numbers as the structure has members.
std::vector<double> membersOf(std::string_view text, std::size_t count, const Property& property) {
  std::vector<double> values = numbersOf(text);
  if (values.size() != count)
    throw std::invalid_argument("expected " + property.noun() + " of " + std::to_string(count) +
                                " numbers, found " + quotedWord(text));
  return values;
}

Object structureOf(const Property& property, std::string_view text) {
  const std::vector<double> v = membersOf(text, property.kind == Kind::rect ? 4 : 2, property);
  if (property.kind == Kind::point) return structure(CGPoint{v[0], v[1]});
  if (property.kind == Kind::size) return structure(CGSize{v[0], v[1]});
  return structure(CGRect{{v[0], v[1]}, {v[2], v[3]}});
}

Object colorObject(const ColorComponents& components) {
  if (CGColor::cls() == nullptr) return nullptr;
  auto made = CGColor::make();
  CGColor::of(made.get()).color = components;
  return autorelease(std::move(made));
}

Object numberArray(std::string_view text) {
  std::vector<Object> numbers;
  for (const double value : numbersOf(text)) numbers.push_back(sim::number(value));
  return array(numbers);
}

Object anyOf(std::string_view text) {
  const auto value = number(text);
  return value ? sim::number(*value) : string(text);
}

bool isStructure(Object value, const char* encoding) {
  const NSValue* state = stateOf<NSValue>(value);
  return state != nullptr && state->type == encoding;
}

template <class Test>
bool isArrayOf(Object value, Test test) {
  const NSArray* state = stateOf<NSArray>(value);
  if (state == nullptr) return false;
  for (const auto& element : state->elements)
    if (!test(element.get())) return false;
  return true;
}

}  // namespace

Object valueOf(const Property& property, std::string_view text) {
  switch (property.kind) {
    case Kind::real:
      return sim::number(realOf(text));
    case Kind::integer:
      return sim::number(integerOf(text));
    case Kind::flag:
      return sim::number(flagOf(text));
    case Kind::point:
    case Kind::size:
    case Kind::rect:
      return structureOf(property, text);
    case Kind::transform:
      return structure(transformOf(text));
    case Kind::color:
      return colorObject(colorOf(text));
    case Kind::path:
      return CGPath::of(pathOf(text));
    case Kind::numbers:
      return numberArray(text);
    case Kind::text:
      return string(text);
    case Kind::value:
    case Kind::unknown:
      return anyOf(text);
    case Kind::image:
    case Kind::object:
    case Kind::objects:
      break;
  }
  throw std::invalid_argument("expected " + property.noun() + ", found " + quotedWord(text));
}

bool isValueOf(const Property& property, Object value) {
  switch (property.kind) {
    case Kind::real:
    case Kind::integer:
    case Kind::flag:
      return isA<NSNumber>(value);
    case Kind::point:
      return isStructure(value, objc::encoding<CGPoint>.c_str());
    case Kind::size:
      return isStructure(value, objc::encoding<CGSize>.c_str());
    case Kind::rect:
      return isStructure(value, objc::encoding<CGRect>.c_str());
    case Kind::transform:
      return isStructure(value, objc::encoding<CATransform3D>.c_str());
    case Kind::color:
      return isA<CGColor>(value);
    case Kind::path:
      return isA<CGPath>(value);
    case Kind::numbers:
      return isArrayOf(value, [](Object each) { return isA<NSNumber>(each); });
    case Kind::text:
      return isKindOf(value, "NSString");
    case Kind::image:
      return isKindOf(value, "UIImage");
    case Kind::object:
      return isKindOf(value, property.cls);
    case Kind::objects:
      return isArrayOf(value, [&](Object each) { return isKindOf(each, property.cls); });
    case Kind::value:
    case Kind::unknown:
      return bool(value);
  }
  return false;
}

}  // namespace sim::caml
