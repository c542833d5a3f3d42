// Type encodings, made from C++ types at compile time.
//
// The letters are those of the platform's compiler for 64-bit phones: BOOL is C's bool ("B"),
// NSInteger is long ("q"), CGFloat is double ("d"). A structure that crosses the bridge names its
// encoding by specialising objc::StructEncoding.
#pragma once

#include <cstdint>
#include <type_traits>

#include "objc/FixedString.h"
#include "objc/Object.h"

namespace objc {

// Specialise with `static constexpr auto value = objc::FixedString("{CGPoint=dd}");`
template <class T>
struct StructEncoding {
  static_assert(sizeof(T) == 0, "specialise objc::StructEncoding for this type");
};

// Blocks (objc/Block.h) mark themselves with this.
struct BlockTag {};

template <class T>
constexpr auto integerLetter() {
  if constexpr (sizeof(T) == 1) {
    if constexpr (std::is_signed_v<T>)
      return FixedString("c");
    else
      return FixedString("C");
  } else if constexpr (sizeof(T) == 2) {
    if constexpr (std::is_signed_v<T>)
      return FixedString("s");
    else
      return FixedString("S");
  } else if constexpr (sizeof(T) == 4) {
    if constexpr (std::is_signed_v<T>)
      return FixedString("i");
    else
      return FixedString("I");
  } else {
    static_assert(sizeof(T) == 8, "integers of this width have no encoding");
    if constexpr (std::is_signed_v<T>)
      return FixedString("q");
    else
      return FixedString("Q");
  }
}

template <class T>
constexpr auto encode();

template <class Pointee>
constexpr auto encodePointer() {
  if constexpr (std::is_function_v<Pointee>)
    return FixedString("^?");
  else if constexpr (std::is_same_v<std::remove_const_t<Pointee>, char>) {
    if constexpr (std::is_const_v<Pointee>)
      return FixedString("r*");
    else
      return FixedString("*");
  } else if constexpr (std::is_const_v<Pointee>) {
    return FixedString("r^") + encode<std::remove_const_t<Pointee>>();
  } else {
    return FixedString("^") + encode<Pointee>();
  }
}

template <class T>
constexpr auto encode() {
  if constexpr (std::is_base_of_v<BlockTag, T>)
    return FixedString("@?");
  else if constexpr (std::is_base_of_v<Object, T> || std::is_same_v<T, id>)
    return FixedString("@");
  else if constexpr (std::is_same_v<T, Class>)
    return FixedString("#");
  else if constexpr (std::is_same_v<T, SEL>)
    return FixedString(":");
  else if constexpr (std::is_void_v<T>)
    return FixedString("v");
  else if constexpr (std::is_same_v<T, bool>)
    return FixedString("B");
  else if constexpr (std::is_same_v<T, float>)
    return FixedString("f");
  else if constexpr (std::is_same_v<T, double>)
    return FixedString("d");
  else if constexpr (std::is_enum_v<T>)
    return encode<std::underlying_type_t<T>>();
  else if constexpr (std::is_integral_v<T>)
    return integerLetter<T>();
  else if constexpr (std::is_pointer_v<T>)
    return encodePointer<std::remove_pointer_t<T>>();
  else
    return StructEncoding<T>::value;
}

template <class T>
inline constexpr auto encoding = encode<T>();

// A whole method: result, self, _cmd, arguments; without frame offsets, which are informational.
template <class Result, class... Arguments>
inline constexpr auto methodEncoding = ((encode<Result>() + FixedString("@:")) + ... +
                                        encode<Arguments>());

}  // namespace objc
