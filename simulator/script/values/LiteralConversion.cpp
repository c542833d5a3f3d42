#include "objc/Message.h"
#include "simulator/foundation/Values.h"
#include "simulator/script/values/Literal.h"

namespace sim {
namespace {

std::string typeName(const TypeEncoding& type) {
  switch (type.kind) {
    case '@':
      return "an object";
    case '#':
      return "a class";
    case ':':
      return "a selector";
    case 'B':
      return "YES or NO";
    case '*':
      return "a string or nil";
    case '^':
    case '?':
      return "nil";
    case '{':
      return "a structure of " + std::to_string(type.members.size()) + " members";
    default:
      return type.isInteger() ? "an integer that fits the type " + type.text : "a number";
  }
}

[[noreturn]] void fail(const Literal& literal, const TypeEncoding& type) {
  throw ScriptError(literal.column, "expected " + typeName(type) + ", found " + literal.written);
}

Value pointerValue(const TypeEncoding& type, const void* pointer) {
  Value value(type);
  std::memcpy(value.bytes(), &pointer, sizeof pointer);
  return value;
}

// Fills the argument of one type from each kind of literal.
struct Converter {
  const Literal& literal;
  const TypeEncoding& type;

  bool isPointer() const { return std::string_view("@#:*^?").find(type.kind) != none; }

  Value operator()(Literal::Nil) const {
    if (!isPointer()) fail(literal, type);
    return Value(type);
  }
  Value operator()(bool flag) const {
    if (type.kind == '@' && type.text == "@") return Value::ofObject(number(flag));
    if (type.kind != 'B') fail(literal, type);
    Value value(type);
    std::memcpy(value.bytes(), &flag, sizeof flag);
    return value;
  }
  Value operator()(Literal::Number written) const {
    if (type.text == "@") return Value::ofObject(boxed(written.value, written.isInteger));
    return stored(written.value);
  }
  Value operator()(const std::string& text) const {
    if (type.text == "@") return Value::ofObject(string(text));
    if (type.kind != '*') fail(literal, type);
    return Value::ofCString(text);
  }
  Value operator()(const Literal::Structure& members) const {
    if (type.kind != '{' || type.members.size() != members.size()) fail(literal, type);
    Value value(type);
    for (std::size_t index = 0; index < members.size(); ++index) {
      const TypeEncoding& member = type.members[index];
      const Value inner = converted(members[index], member);
      std::memcpy(value.bytes() + type.offsetOf(index), inner.bytes(), member.size());
    }
    return value;
  }
  Value operator()(SEL selector) const {
    if (type.kind != ':') fail(literal, type);
    return pointerValue(type, selector);
  }
  Value operator()(const Value& given) const {
    if (given.type().text == type.text) return given;
    if (given.type().isObject() && type.isObject()) return givenObject(given);
    if (const auto flag = given.boolean(); flag && (type.kind == 'B' || type.text == "@"))
      return (*this)(*flag);
    if (const auto value = given.number()) {
      if (type.text == "@") return Value::ofObject(boxed(*value, given.type().isInteger()));
      return stored(*value);
    }
    return sameLayout(given);
  }

 private:
  static constexpr auto none = std::string_view::npos;

  static objc::Object boxed(long double value, bool isInteger) {
    return isInteger ? number(static_cast<long>(value)) : number(static_cast<double>(value));
  }
  Value stored(long double number) const {
    Value value(type);
    if (!storeNumber(type, number, value.bytes())) fail(literal, type);
    return value;
  }
  Value givenObject(const Value& given) const {
    const objc::Object object = given.object();
    if (type.kind == '#' && object && !object_isClass(object.get())) fail(literal, type);
    Value value = pointerValue(type, object.get());
    value.keepObject();
    return value;
  }
  // Structures whose names differ but not their members.
  Value sameLayout(const Value& given) const {
    const auto members = [](const TypeEncoding& encoding) {
      return encoding.text.substr(std::min(encoding.text.find('='), encoding.text.size()));
    };
    if (type.kind != '{' || given.type().kind != '{' || members(type) != members(given.type()))
      fail(literal, type);
    Value value(type);
    std::memcpy(value.bytes(), given.bytes(), type.size());
    return value;
  }
};

}  // namespace

Value converted(const Literal& literal, const TypeEncoding& type) {
  return std::visit(Converter{literal, type}, literal.content);
}

}  // namespace sim
