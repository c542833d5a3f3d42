// The parts of a method's type encoding: a result, then the arguments, each followed by its place
// on the stack: "q24@0:8d16".
#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>
#include <optional>
#include <string_view>

#include "simulator/runtime/Class.h"

namespace {

constexpr std::string_view qualifiers = "rnNoORVA";  // const, in, inout ... _Atomic
constexpr std::string_view digits = "+-0123456789";

// Up to and with the bracket that closes the first. Names in quotes may hold brackets.
std::size_t bracketLength(std::string_view types, char open, char close) {
  int depth = 0;
  bool quoted = false;
  for (std::size_t i = 0; i < types.size(); ++i) {
    quoted ^= types[i] == '"';
    depth += quoted ? 0 : (types[i] == open) - (types[i] == close);
    if (depth == 0 && !quoted) return i + 1;
  }
  return types.size();
}

// An object's type may go on with its class, a block's with its signature: @"NSString", @?<v@?>.
std::size_t objectLength(std::string_view types) {
  std::size_t length = 1;
  if (types.substr(length).starts_with('?')) ++length;
  if (types.substr(length).starts_with('<'))
    return length + bracketLength(types.substr(length), '<', '>');
  if (types.substr(length).starts_with('"')) {
    const std::size_t end = types.find('"', length + 1);
    return end != types.npos ? end + 1 : types.size();
  }
  return length;
}

std::size_t typeLength(std::string_view types) {
  if (types.empty()) return 0;
  switch (types.front()) {
    case '{':
      return bracketLength(types, '{', '}');
    case '(':
      return bracketLength(types, '(', ')');
    case '[':
      return bracketLength(types, '[', ']');
    case '@':
      return objectLength(types);
    case '^':
      return 1 + typeLength(types.substr(1));
    case 'b':
      return 1 + std::min(types.size() - 1, types.substr(1).find_first_not_of(digits));
    default:
      return qualifiers.find(types.front()) != qualifiers.npos ? 1 + typeLength(types.substr(1))
                                                               : 1;
  }
}

// Takes the first type with its qualifiers off; the offset behind it goes too.
std::string_view takeType(std::string_view& types) {
  const std::string_view type = types.substr(0, typeLength(types));
  types.remove_prefix(type.size());
  types.remove_prefix(std::min(types.size(), types.find_first_not_of(digits)));
  return type;
}

// 0 is the result, 1 the first argument.
std::optional<std::string_view> typeAt(Method method, std::size_t position) {
  std::string_view types = method->types;
  for (; position > 0 && !types.empty(); --position) takeType(types);
  return types.empty() ? std::nullopt : std::optional(takeType(types));
}

char* copied(std::optional<std::string_view> type) {
  if (!type) return nullptr;
  char* copy = strndup(type->data(), type->size());
  if (copy == nullptr) throw std::bad_alloc();
  return copy;
}

}  // namespace

unsigned int method_getNumberOfArguments(Method method) {
  if (method == nullptr) return 0;
  unsigned int count = 0;
  std::string_view types = method->types;
  for (takeType(types); !types.empty(); takeType(types)) ++count;
  return count;
}

char* method_copyReturnType(Method method) {
  return method != nullptr ? copied(typeAt(method, 0)) : nullptr;
}

char* method_copyArgumentType(Method method, unsigned int index) {
  return method != nullptr ? copied(typeAt(method, std::size_t{index} + 1)) : nullptr;
}
