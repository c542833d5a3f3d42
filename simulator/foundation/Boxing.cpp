#include "simulator/foundation/Boxing.h"

#include <cstring>
#include <type_traits>

#include "objc/Message.h"
#include "objc/Ownership.h"
#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSNumber.h"
#include "simulator/foundation/NSValue.h"
#include "simulator/foundation/TypeEncoding.h"

namespace sim {
namespace {

using objc::Object;

// Structures of these shapes travel alike, whatever their members are called.
template <class Member, int Count>
struct Members {
  Member values[Count];
};

template <class T>
struct Type {
  using type = T;
};

// Calls `visit` with the Type of that encoding; false when there is none.
template <class Visit>
bool visitStructure(std::string_view encoding, Visit visit) {
  const auto structure = firstType(encoding);
  const std::string scalars = structure ? structure->scalars() : "";
  if (scalars == "dd")
    visit(Type<Members<double, 2>>());
  else if (scalars == "dddd")
    visit(Type<Members<double, 4>>());
  else if (scalars == "dddddd")
    visit(Type<Members<double, 6>>());
  else if (scalars == "dddddddddddddddd")
    visit(Type<Members<double, 16>>());
  else if (scalars == "QQ" || scalars == "qq")
    visit(Type<Members<long, 2>>());
  else
    return false;
  return true;
}

template <class Visit>
bool visitType(std::string_view encoding, Visit visit) {
  switch (typeLetter(encoding)) {
    case '@':
    case '#':
      return visit(Type<id>()), true;
    case 'B':
      return visit(Type<bool>()), true;
    case 'c':
      return visit(Type<signed char>()), true;
    case 'C':
      return visit(Type<unsigned char>()), true;
    case 's':
      return visit(Type<short>()), true;
    case 'S':
      return visit(Type<unsigned short>()), true;
    case 'i':
      return visit(Type<int>()), true;
    case 'I':
      return visit(Type<unsigned int>()), true;
    case 'q':
      return visit(Type<long>()), true;
    case 'Q':
      return visit(Type<unsigned long>()), true;
    case 'f':
      return visit(Type<float>()), true;
    case 'd':
      return visit(Type<double>()), true;
    case '{':
      return visitStructure(encoding, visit);
    default:
      return false;
  }
}

template <class T>
Object boxedValue(T value, std::string_view encoding) {
  if constexpr (std::is_same_v<T, id>)
    return Object(value);
  else if constexpr (std::is_arithmetic_v<T>)
    return numberOf(value);
  else
    return valueOf(&value, firstType(encoding)->text);
}

// Strings convert, too, because they answer the same messages.
template <class T>
T unboxedValue(Object value) {
  if constexpr (std::is_same_v<T, id>) {
    return value.get();
  } else if constexpr (std::is_same_v<T, bool>) {
    return objc::send<bool, "boolValue">(value);
  } else if constexpr (std::is_floating_point_v<T>) {
    return T(objc::send<double, "doubleValue">(value));
  } else if constexpr (std::is_same_v<T, unsigned long>) {
    return objc::send<unsigned long long, "unsignedLongLongValue">(value);
  } else if constexpr (std::is_arithmetic_v<T>) {
    return T(objc::send<long long, "longLongValue">(value));
  } else {
    T members = {};
    const NSValue* state = stateOf<NSValue>(value);
    if (state == nullptr || state->bytes.size() != sizeof members)
      raiseException("NSInvalidArgumentException", "a structure of another size is needed");
    std::memcpy(&members, state->bytes.data(), sizeof members);
    return members;
  }
}

}  // namespace

bool canBox(std::string_view encoding) {
  return visitType(encoding, [](auto) {});
}

Object sendBoxed(Object receiver, SEL selector, std::string_view resultType) {
  Object result;
  visitType(resultType, [&](auto type) {
    using T = typename decltype(type)::type;
    const auto entry = objc::messageEntry<T>();
    result = boxedValue<T>(entry(receiver.get(), selector), resultType);
  });
  return result;
}

void sendUnboxed(Object receiver, SEL selector, std::string_view argumentType, Object value) {
  visitType(argumentType, [&](auto type) {
    using T = typename decltype(type)::type;
    const auto entry = objc::messageEntry<void, T>();
    entry(receiver.get(), selector, unboxedValue<T>(value));
  });
}

Object boxed(const void* bytes, std::string_view encoding) {
  Object result;
  visitType(encoding, [&](auto type) {
    using T = typename decltype(type)::type;
    T value;
    std::memcpy(&value, bytes, sizeof value);
    result = boxedValue<T>(value, encoding);
  });
  return result;
}

void storeUnboxed(void* bytes, std::string_view encoding, Object value) {
  visitType(encoding, [&](auto type) {
    using T = typename decltype(type)::type;
    T stored = unboxedValue<T>(value);
    if constexpr (std::is_same_v<T, id>) {
      id previous;
      std::memcpy(&previous, bytes, sizeof previous);
      objc_retain(stored);
      std::memcpy(bytes, &stored, sizeof stored);
      objc_release(previous);
    } else {
      std::memcpy(bytes, &stored, sizeof stored);
    }
  });
}

}  // namespace sim
