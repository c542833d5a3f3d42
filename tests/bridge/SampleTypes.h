// Every type that crosses the bridge as a result or an argument, with a value of each that wrong
// widths, wrong signs or swapped registers would change.
#pragma once

#include <gtest/gtest.h>

#include <type_traits>

#include "objc/Encoding.h"
#include "objc/Selector.h"

namespace bridge {

struct Floats8 {
  float x, y;
  friend bool operator==(const Floats8&, const Floats8&) = default;
};
struct Mixed8 {
  int number;
  float fraction;
  friend bool operator==(const Mixed8&, const Mixed8&) = default;
};
struct Doubles16 {
  double x, y;
  friend bool operator==(const Doubles16&, const Doubles16&) = default;
};
struct Mixed16 {
  long number;
  double fraction;
  friend bool operator==(const Mixed16&, const Mixed16&) = default;
};
struct Mixed24 {
  long number;
  double fraction;
  int small;
  bool flag;
  friend bool operator==(const Mixed24&, const Mixed24&) = default;
};
struct Doubles32 {
  Doubles16 origin, size;
  friend bool operator==(const Doubles32&, const Doubles32&) = default;
};
struct Mixed32 {
  double fraction;
  long number;
  float small;
  unsigned short narrow;
  void* pointer;
  friend bool operator==(const Mixed32&, const Mixed32&) = default;
};
struct Doubles48 {
  double a, b, c, d, x, y;
  friend bool operator==(const Doubles48&, const Doubles48&) = default;
};
static_assert(sizeof(Floats8) == 8 && sizeof(Mixed8) == 8);
static_assert(sizeof(Doubles16) == 16 && sizeof(Mixed16) == 16);
static_assert(sizeof(Mixed24) == 24);
static_assert(sizeof(Doubles32) == 32 && sizeof(Mixed32) == 32);
static_assert(sizeof(Doubles48) == 48);

enum class Direction : long { up = 1, down = -2 };
enum SmallFlags : unsigned char { noFlags = 0, allFlags = 0xFF };

inline char someBytes[8];
inline id someObjects[2];

template <class T>
T sample() {
  if constexpr (std::is_same_v<T, bool>)
    return true;
  else if constexpr (std::is_enum_v<T>)
    return static_cast<T>(sample<std::underlying_type_t<T>>());
  else if constexpr (std::is_integral_v<T> && std::is_signed_v<T>)
    return T(0x8182838485868788UL >> (64 - 8 * sizeof(T)));  // negative at every width
  else if constexpr (std::is_integral_v<T>)
    return T(0xF1F2F3F4F5F6F7F8UL >> (64 - 8 * sizeof(T)));
  else
    return T(-1234.0625);
}
template <>
inline void* sample<void*>() {
  return someBytes;
}
template <>
inline const char* sample<const char*>() {
  return "text";
}
template <>
inline id* sample<id*>() {
  return someObjects;
}
template <>
inline SEL sample<SEL>() {
  return objc::selector<"sample:">();
}
template <>
inline Class sample<Class>() {
  return objc_getClass("NSObject");
}
template <>
inline id sample<id>() {
  return reinterpret_cast<id>(objc_getClass("NSObject"));
}
template <>
inline objc::Object sample<objc::Object>() {
  return objc::Object(sample<id>());
}
template <>
inline Floats8 sample<Floats8>() {
  return {1.5F, -2.25F};
}
template <>
inline Mixed8 sample<Mixed8>() {
  return {-3, 0.75F};
}
template <>
inline Doubles16 sample<Doubles16>() {
  return {1.5, -2.25};
}
template <>
inline Mixed16 sample<Mixed16>() {
  return {-3, 0.75};
}
template <>
inline Mixed24 sample<Mixed24>() {
  return {-3, 0.75, 12, true};
}
template <>
inline Doubles32 sample<Doubles32>() {
  return {{1, -2}, {3.5, 4.25}};
}
template <>
inline Mixed32 sample<Mixed32>() {
  return {0.125, -7, 2.5F, 65535, someBytes};
}
template <>
inline Doubles48 sample<Doubles48>() {
  return {1, 2, 3, -4, 5.5, 6.25};
}

using SampleTypes =
    testing::Types<bool, signed char, unsigned char, short, unsigned short, int, unsigned int, long,
                   unsigned long, long long, unsigned long long, float, double, void*, const char*,
                   id*, SEL, Class, id, objc::Object, Direction, SmallFlags, Floats8, Mixed8,
                   Doubles16, Mixed16, Mixed24, Doubles32, Mixed32, Doubles48>;

}  // namespace bridge

template <>
struct objc::StructEncoding<bridge::Floats8> {
  static constexpr auto value = FixedString("{Floats8=ff}");
};
template <>
struct objc::StructEncoding<bridge::Mixed8> {
  static constexpr auto value = FixedString("{Mixed8=if}");
};
template <>
struct objc::StructEncoding<bridge::Doubles16> {
  static constexpr auto value = FixedString("{Doubles16=dd}");
};
template <>
struct objc::StructEncoding<bridge::Mixed16> {
  static constexpr auto value = FixedString("{Mixed16=qd}");
};
template <>
struct objc::StructEncoding<bridge::Mixed24> {
  static constexpr auto value = FixedString("{Mixed24=qdiB}");
};
template <>
struct objc::StructEncoding<bridge::Doubles32> {
  static constexpr auto value = FixedString("{Doubles32={Doubles16=dd}{Doubles16=dd}}");
};
template <>
struct objc::StructEncoding<bridge::Mixed32> {
  static constexpr auto value = FixedString("{Mixed32=dqfS^v}");
};
template <>
struct objc::StructEncoding<bridge::Doubles48> {
  static constexpr auto value = FixedString("{Doubles48=dddddd}");
};
