#include "simulator/foundation/Values.h"

#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSArray.h"
#include "simulator/foundation/NSDate.h"
#include "simulator/foundation/NSDictionary.h"
#include "simulator/foundation/NSNumber.h"
#include "simulator/foundation/NSString.h"
#include "simulator/foundation/NSValue.h"
#include "simulator/foundation/Unicode.h"
#include "simulator/machine/Journal.h"

namespace sim {

using objc::Object;

Object string(std::string_view utf8) {
  return stringOf(unicode::fromUtf8Lossy(utf8));
}

Object number(bool value) {
  return numberOf(value);
}
Object number(long value) {
  return numberOf(value);
}
Object number(double value) {
  return numberOf(value);
}

Object date(double secondsSinceReferenceDate) {
  objc::Strong<Object> made = NSDate::make();
  NSDate::of(made.get()).reference = secondsSinceReferenceDate;
  return autorelease(std::move(made));
}

Object array(const std::vector<Object>& elements) {
  objc::Strong<Object> made = NSArray::make();
  auto& stored = NSArray::of(made.get()).elements;
  for (const Object element : elements) stored.push_back(objc::retain(element));
  return autorelease(std::move(made));
}

Object dictionary(const std::vector<std::pair<Object, Object>>& keysAndValues) {
  objc::Strong<Object> made = NSDictionary::make();
  for (const auto& [key, value] : keysAndValues) NSDictionary::of(made.get()).put(key, value);
  return autorelease(std::move(made));
}

std::string text(Object string) {
  return string ? unicode::toUtf8(unitsOf(string)) : std::string();
}

std::string description(Object object) {
  const Object described = objc::send<Object, "description">(object);
  return described ? text(described) : "(null)";
}

std::string notation(Object object) {
  if (!object) return "nil";
  if (isA<NSString>(object)) return sim::quoted(text(object));
  if (const NSDate* date = stateOf<NSDate>(object)) return dateText(date->reference);
  if (const NSNumber* number = stateOf<NSNumber>(object)) {
    if (number->isBoolean()) return notation(number->as<bool>());
    if (number->letter == 'f') return notation(number->as<float>());
    return number->isReal() ? notation(number->real) : number->text();
  }
  const NSValue* value = stateOf<NSValue>(object);
  if (value != nullptr && value->type.starts_with('{'))
    return structureNotation(value->type, value->bytes.data());
  return std::string("<") + object_getClassName(object.get()) + '>';
}

bool isKindOf(Object object, const char* className) {
  const Class wanted = objc_getClass(className);
  return wanted != nullptr && object && objc::send<bool, "isKindOfClass:">(object, wanted);
}

}  // namespace sim
