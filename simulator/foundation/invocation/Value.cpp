#include "simulator/foundation/invocation/Value.h"

#include <cmath>
#include <limits>
#include <stdexcept>
#include <utility>

#include "objc/Message.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Journal.h"

namespace sim {
namespace {

template <class Integer>
bool storeInteger(long double number, std::byte* place) {
  using Limits = std::numeric_limits<Integer>;
  if (number != std::trunc(number) || number < static_cast<long double>(Limits::min()) ||
      number > static_cast<long double>(Limits::max()))
    return false;
  const auto exact = static_cast<Integer>(number);
  std::memcpy(place, &exact, sizeof exact);
  return true;
}

template <class Float>
bool storeFloat(long double number, std::byte* place) {
  const auto rounded = static_cast<Float>(number);
  std::memcpy(place, &rounded, sizeof rounded);
  return std::isfinite(rounded) || !std::isfinite(number);
}

long double loadNumber(const Value& value) {
  switch (value.type().kind) {
    case 'c':
      return value.as<signed char>();
    case 'C':
      return value.as<unsigned char>();
    case 's':
      return value.as<short>();
    case 'S':
      return value.as<unsigned short>();
    case 'i':
      return value.as<int>();
    case 'I':
      return value.as<unsigned int>();
    case 'L':
    case 'Q':
      return value.as<unsigned long>();
    case 'f':
      return value.as<float>();
    case 'd':
      return value.as<double>();
    default:
      return value.as<long>();
  }
}

bool isBoolean(objc::Object object) {
  const std::string shown = notation(object);
  return shown == "YES" || shown == "NO";
}

bool isNumber(objc::Object object) {
  return object && isKindOf(object, "NSNumber");
}

std::string objectNotation(objc::Object object) {
  if (object && object_isClass(object.get()))
    return class_getName(reinterpret_cast<Class>(object.get()));
  return notation(object);
}

std::string structureNotation(const Value& value) {
  std::string text = "{";
  for (std::size_t index = 0; index < value.type().members.size(); ++index)
    text += (index == 0 ? "" : ", ") + notation(value.member(index));
  return text + "}";
}

std::string integerNotation(const Value& value) {
  const long double number = loadNumber(value);
  return number < 0 ? std::to_string(static_cast<long>(number))
                    : std::to_string(static_cast<unsigned long>(number));
}

}  // namespace

Value::Value(TypeEncoding type) : type_(std::move(type)) {
  if (type_.size() > bytes_.size())
    throw std::invalid_argument("values of type \"" + type_.text + "\" are too large");
}

Value Value::ofObject(objc::Object object) {
  return ofOwned(objc::retain(object));
}

Value Value::ofOwned(objc::Strong<objc::Object> object) {
  Value value(parseType("@"));
  const id pointer = object.get().get();
  std::memcpy(value.bytes(), &pointer, sizeof pointer);
  value.kept_ = std::move(object);
  return value;
}

Value Value::ofCString(std::string text) {
  Value value(parseType("*"));
  value.text_ = std::make_shared<std::string>(std::move(text));
  const char* pointer = value.text_->c_str();
  std::memcpy(value.bytes(), &pointer, sizeof pointer);
  return value;
}

objc::Object Value::object() const {
  return type_.isObject() ? objc::Object(as<id>()) : objc::Object();
}

std::optional<long double> Value::number() const {
  if (type_.isInteger() || type_.isFloating()) return loadNumber(*this);
  if (!isNumber(object()) || isBoolean(object())) return std::nullopt;
  // Integers beyond 2^53 are exact only when they are asked for as integers.
  const auto asInteger = objc::send<long, "longLongValue">(object());
  const auto asDouble = objc::send<double, "doubleValue">(object());
  return double(asInteger) == asDouble ? static_cast<long double>(asInteger) : asDouble;
}

std::optional<bool> Value::boolean() const {
  if (type_.kind == 'B') return as<bool>();
  if (!isNumber(object()) || !isBoolean(object())) return std::nullopt;
  return objc::send<bool, "boolValue">(object());
}

Value Value::member(std::size_t index) const {
  Value found(type_.members[index]);
  std::memcpy(found.bytes(), bytes() + type_.offsetOf(index), found.type().size());
  found.keepObject();
  return found;
}

bool storeNumber(const TypeEncoding& type, long double number, std::byte* place) {
  switch (type.kind) {
    case 'c':
      return storeInteger<signed char>(number, place);
    case 'C':
      return storeInteger<unsigned char>(number, place);
    case 's':
      return storeInteger<short>(number, place);
    case 'S':
      return storeInteger<unsigned short>(number, place);
    case 'i':
      return storeInteger<int>(number, place);
    case 'I':
      return storeInteger<unsigned int>(number, place);
    case 'l':
    case 'q':
      return storeInteger<long>(number, place);
    case 'L':
    case 'Q':
      return storeInteger<unsigned long>(number, place);
    case 'f':
      return storeFloat<float>(number, place);
    case 'd':
      return storeFloat<double>(number, place);
    default:
      return false;
  }
}

std::string notation(const Value& value) {
  switch (value.type().kind) {
    case 'v':
      return "nothing";
    case 'B':
      return notation(value.as<bool>());
    case 'f':
      return notation(value.as<float>());
    case 'd':
      return notation(value.as<double>());
    case '@':
    case '#':
      return objectNotation(value.object());
    case '{':
      return structureNotation(value);
    case ':':
      return value.as<SEL>() == nullptr ? "nil"
                                        : std::string("selector ") + sel_getName(value.as<SEL>());
    case '*':
      return value.as<const char*>() == nullptr ? "nil" : sim::quoted(value.as<const char*>());
    case '^':
    case '?':
      return value.as<void*>() == nullptr ? "nil" : "pointer";
    default:
      return integerNotation(value);
  }
}

}  // namespace sim
