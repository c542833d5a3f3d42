#include "simulator/script/values/SavedValue.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "simulator/foundation/NSNumber.h"
#include "simulator/foundation/NSString.h"
#include "simulator/foundation/Values.h"

namespace sim {
namespace {

using Kind = SavedValue::Kind;
using Bytes = std::vector<unsigned char>;

bool holdsNoPointer(const TypeEncoding& type) {
  if (type.kind == '{')
    return std::all_of(type.members.begin(), type.members.end(), holdsNoPointer);
  return type.kind == 'B' || type.isInteger() || type.isFloating();
}

Bytes bytesAt(const void* place, std::size_t count) {
  const auto* first = static_cast<const unsigned char*>(place);
  return {first, first + count};
}

template <class Text>
Bytes bytesOf(const Text& text) {
  return bytesAt(text.data(), text.size() * sizeof text[0]);
}

template <class Text>
Text textFrom(const Bytes& bytes) {
  Text text(bytes.size() / sizeof text[0], 0);
  if (!text.empty()) std::memcpy(text.data(), bytes.data(), text.size() * sizeof text[0]);
  return text;
}

SavedValue savedNumber(const NSNumber& number) {
  const std::string letter(1, number.letter);
  return {Kind::number, letter,
          number.isReal() ? bytesAt(&number.real, sizeof number.real)
                          : bytesAt(&number.integer, sizeof number.integer)};
}

// Of exactly these classes: what an extension makes of them holds more than their value.
std::optional<SavedValue> savedObject(objc::Object object) {
  const Class cls = object_getClass(object.get());
  if (cls == NSString::cls()) return SavedValue{Kind::string, "@", bytesOf(unitsOf(object))};
  if (cls == NSNumber::cls()) return savedNumber(NSNumber::of(object));
  return std::nullopt;
}

objc::Object restoredNumber(const SavedValue& from) {
  auto made = NSNumber::make();
  NSNumber& number = NSNumber::of(made.get());
  number.letter = from.type.at(0);
  if (from.bytes.size() != sizeof number.integer)
    throw std::invalid_argument("a saved number has 8 bytes");
  if (number.isReal())
    std::memcpy(&number.real, from.bytes.data(), sizeof number.real);
  else
    std::memcpy(&number.integer, from.bytes.data(), sizeof number.integer);
  return autorelease(std::move(made));
}

Value restoredBytes(const SavedValue& from) {
  Value value(parseType(from.type));
  if (from.bytes.size() != value.type().size())
    throw std::invalid_argument("a saved value has the size of its type");
  std::copy(from.bytes.begin(), from.bytes.end(), reinterpret_cast<unsigned char*>(value.bytes()));
  return value;
}

Value restoredSelector(const std::string& name) {
  Value value(parseType(":"));
  const SEL selector = sel_registerName(name.c_str());
  std::memcpy(value.bytes(), &selector, sizeof selector);
  return value;
}

}  // namespace

std::optional<SavedValue> saved(const Value& value) {
  const TypeEncoding& type = value.type();
  if (holdsNoPointer(type) || type.kind == 'v' ||
      (type.kind != '{' && value.as<void*>() == nullptr))
    return SavedValue{Kind::bytes, type.text, bytesAt(value.bytes(), type.size())};
  if (type.text == "@") return savedObject(value.object());
  if (type.kind == '*')
    return SavedValue{Kind::text, type.text, bytesOf(std::string_view(value.as<const char*>()))};
  if (type.kind == ':')
    return SavedValue{Kind::selector, type.text,
                      bytesOf(std::string_view(sel_getName(value.as<SEL>())))};
  return std::nullopt;
}

Value restored(const SavedValue& from) {
  switch (from.kind) {
    case Kind::bytes:
      return restoredBytes(from);
    case Kind::text:
      return Value::ofCString(textFrom<std::string>(from.bytes));
    case Kind::selector:
      return restoredSelector(textFrom<std::string>(from.bytes));
    case Kind::string:
      return Value::ofObject(stringOf(textFrom<std::u16string>(from.bytes)));
    case Kind::number:
      return Value::ofObject(restoredNumber(from));
  }
  throw std::invalid_argument("a saved value is of no known kind");
}

void to_json(nlohmann::json& node, const SavedValue& value) {
  node = {int(value.kind), value.type, value.bytes};
}

void from_json(const nlohmann::json& node, SavedValue& value) {
  value.kind = Kind(node.at(0).get<int>());
  node.at(1).get_to(value.type);
  node.at(2).get_to(value.bytes);
}

}  // namespace sim
