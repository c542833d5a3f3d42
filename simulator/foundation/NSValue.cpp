#include "simulator/foundation/NSValue.h"

#include <cstring>
#include <functional>

#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/TypeEncoding.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Journal.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

Object makeWithBytes(const void* bytes, const char* encoding) {
  return valueOf(bytes, encoding);
}

Object makeWithPointer(const void* pointer) {
  return valueOf(&pointer, "^v");
}

Object makeWithNonretainedObject(Object object) {
  return valueOf(&object.pointer, "^v");
}

template <class Number>
std::string memberNotation(const char*& bytes) {
  Number value;
  std::memcpy(&value, bytes, sizeof value);
  bytes += sizeof value;
  if constexpr (std::is_floating_point_v<Number>)
    return notation(value);
  else
    return std::to_string(value);
}

// Members of 8 bytes and floats cover every structure of the platform's geometry.
std::string scalarNotation(char letter, const char*& bytes) {
  switch (letter) {
    case 'd':
      return memberNotation<double>(bytes);
    case 'f':
      return memberNotation<float>(bytes);
    case 'q':
      return memberNotation<long>(bytes);
    case 'Q':
      return memberNotation<unsigned long>(bytes);
    default:
      return "?";
  }
}

}  // namespace

Object valueOf(const void* bytes, std::string_view encoding) {
  objc::Strong<Object> made = NSValue::make();
  NSValue::of(made.get()).initWithBytes(bytes, std::string(encoding).c_str());
  return autorelease(std::move(made));
}

unsigned long sizeOfType(std::string_view encoding) {
  const auto type = firstType(encoding);
  return type && type->kind != '?' ? type->size() : 0;  // ?: nobody knows what
}

std::string structureNotation(std::string_view encoding, const void* source) {
  const char* bytes = static_cast<const char*>(source);
  std::string result;
  bool inName = false;
  for (const char letter : encoding) {
    if (letter == '}') {
      result += letter;
    } else if (letter == '=') {
      inName = false;
    } else if (!inName) {
      if (!result.empty() && result.back() != '{') result += ", ";
      inName = letter == '{';
      result += inName ? "{" : scalarNotation(letter, bytes);
    }
  }
  return result;
}

Object NSValue::initWithBytes(const void* source, const char* encoding) {
  type = encoding;
  const std::size_t size = sizeOfType(type);
  if (size == 0) {
    raiseException("NSInvalidArgumentException",
                   methodName(Object(self()), "initWithBytes:objCType:") +
                       ": unsupported type encoding '" + type + "'");
  }
  bytes.assign(static_cast<const char*>(source), size);
  return Object(self());
}

void NSValue::getValue(void* target) const {
  std::memcpy(target, bytes.data(), bytes.size());
}

void NSValue::getValueSize(void* target, unsigned long size) const {
  if (size != bytes.size()) {
    raiseException("NSInvalidArgumentException",
                   "Cannot get value with size " + std::to_string(size) + ". The type encoded as " +
                       type + " is expected to be " + std::to_string(bytes.size()) + " bytes");
  }
  getValue(target);
}

void* NSValue::pointerValue() const {
  void* pointer = nullptr;
  if (bytes.size() == sizeof pointer) std::memcpy(&pointer, bytes.data(), sizeof pointer);
  return pointer;
}

Object NSValue::nonretainedObjectValue() const {
  return Object(static_cast<id>(pointerValue()));
}

bool NSValue::isEqual(Object other) const {
  const NSValue* state = stateOf<NSValue>(other);
  return state != nullptr && state->type == type && state->bytes == bytes;
}

unsigned long NSValue::hash() const {
  return std::hash<std::string>()(bytes);
}

Object NSValue::description() const {
  if (type.starts_with('{')) return string(structureNotation(type, bytes.data()));
  std::string hex = "<";
  constexpr const char* digits = "0123456789abcdef";
  for (const char byte : bytes) {
    hex += digits[(byte >> 4) & 0xf];
    hex += digits[byte & 0xf];
  }
  return string(hex + '>');
}

void NSValue::registerClass() {
  StandIn<NSValue>("Foundation", "NSValue", "NSObject")
      .classMethod<"valueWithBytes:objCType:", &makeWithBytes>()
      .classMethod<"value:withObjCType:", &makeWithBytes>()
      .classMethod<"valueWithPointer:", &makeWithPointer>()
      .classMethod<"valueWithNonretainedObject:", &makeWithNonretainedObject>()
      .method<"initWithBytes:objCType:", &NSValue::initWithBytes>()
      .method<"getValue:", &NSValue::getValue>()
      .method<"getValue:size:", &NSValue::getValueSize>()
      .method<"objCType", &NSValue::objCType>()
      .method<"pointerValue", &NSValue::pointerValue>()
      .method<"nonretainedObjectValue", &NSValue::nonretainedObjectValue>()
      .method<"isEqual:", &NSValue::isEqual>()
      .method<"isEqualToValue:", &NSValue::isEqual>()
      .method<"hash", &NSValue::hash>()
      .method<"copyWithZone:", &shareAsCopy>()
      .partial<"description", &NSValue::description>(
          "a structure is printed as {{x, y}, {w, h}}, without its name in front")
      .finish();
}

}  // namespace sim
