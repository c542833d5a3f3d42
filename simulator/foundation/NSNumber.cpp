#include "simulator/foundation/NSNumber.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>

#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSString.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

template <class Number>
Object initWith(Object self, Number value) {
  NSNumber& state = NSNumber::of(self);
  state.letter = objc::encode<Number>().text[0];
  if constexpr (std::is_floating_point_v<Number>)
    state.real = value;
  else
    state.integer = std::int64_t(value);
  return self;
}

template <class Number>
Number valueAs(Object self) {
  return NSNumber::of(self).as<Number>();
}

std::string printed(const char* format, double value) {
  std::array<char, 40> digits;
  std::snprintf(digits.data(), digits.size(), format, value);
  return digits.data();
}

// The encoding's letters as C strings that last.
const char* objCType(Object self) {
  switch (NSNumber::of(self).letter) {
    case 'B':
    case 'c':
      return "c";  // the platform's booleans are chars here
    case 'C':
      return "C";
    case 's':
      return "s";
    case 'S':
      return "S";
    case 'i':
      return "i";
    case 'I':
      return "I";
    case 'Q':
      return "Q";
    case 'f':
      return "f";
    case 'd':
      return "d";
    default:
      return "q";
  }
}

bool isEqual(Object self, Object other) {
  const NSNumber* state = stateOf<NSNumber>(other);
  return state != nullptr && NSNumber::of(self).compareTo(*state) == 0;
}

long compare(Object self, Object other) {
  const NSNumber* state = stateOf<NSNumber>(other);
  if (state == nullptr) {
    raiseException("NSInvalidArgumentException",
                   methodName(self, "compare:") + ": " + (other ? "not a number" : "nil argument"));
  }
  const auto order = NSNumber::of(self).compareTo(*state);
  return order < 0 ? -1 : order > 0;
}

// Equal numbers hash alike, whatever their type.
unsigned long hash(Object self) {
  const NSNumber& number = NSNumber::of(self);
  if (!number.isReal()) return std::hash<std::int64_t>()(number.integer);
  const bool whole = number.real == std::trunc(number.real) && std::abs(number.real) < 1e18;
  return whole ? std::hash<std::int64_t>()(std::int64_t(number.real))
               : std::hash<double>()(number.real);
}

Object stringValue(Object self) {
  return string(NSNumber::of(self).text());
}

void getValue(Object self, void* target) {
  const NSNumber& number = NSNumber::of(self);
  const auto store = [target](auto value) { std::memcpy(target, &value, sizeof value); };
  switch (number.letter) {
    case 'd':
      return store(number.real);
    case 'f':
      return store(float(number.real));
    case 'i':
    case 'I':
      return store(std::int32_t(number.integer));
    case 's':
    case 'S':
      return store(std::int16_t(number.integer));
    case 'c':
    case 'C':
    case 'B':
      return store(std::int8_t(number.integer));
    default:
      return store(number.integer);
  }
}

void addFactories(StandIn<NSNumber>& standIn) {
  standIn.classMethod<"numberWithBool:", &numberOf<bool>>()
      .classMethod<"numberWithChar:", &numberOf<signed char>>()
      .classMethod<"numberWithUnsignedChar:", &numberOf<unsigned char>>()
      .classMethod<"numberWithShort:", &numberOf<short>>()
      .classMethod<"numberWithUnsignedShort:", &numberOf<unsigned short>>()
      .classMethod<"numberWithInt:", &numberOf<int>>()
      .classMethod<"numberWithUnsignedInt:", &numberOf<unsigned int>>()
      .classMethod<"numberWithLong:", &numberOf<long>>()
      .classMethod<"numberWithUnsignedLong:", &numberOf<unsigned long>>()
      .classMethod<"numberWithLongLong:", &numberOf<long long>>()
      .classMethod<"numberWithUnsignedLongLong:", &numberOf<unsigned long long>>()
      .classMethod<"numberWithInteger:", &numberOf<long>>()
      .classMethod<"numberWithUnsignedInteger:", &numberOf<unsigned long>>()
      .classMethod<"numberWithFloat:", &numberOf<float>>()
      .classMethod<"numberWithDouble:", &numberOf<double>>();
}

void addInitialisers(StandIn<NSNumber>& standIn) {
  standIn.method<"initWithBool:", &initWith<bool>>()
      .method<"initWithInt:", &initWith<int>>()
      .method<"initWithInteger:", &initWith<long>>()
      .method<"initWithUnsignedInteger:", &initWith<unsigned long>>()
      .method<"initWithLongLong:", &initWith<long long>>()
      .method<"initWithFloat:", &initWith<float>>()
      .method<"initWithDouble:", &initWith<double>>();
}

void addValues(StandIn<NSNumber>& standIn) {
  standIn.method<"boolValue", &valueAs<bool>>()
      .method<"charValue", &valueAs<signed char>>()
      .method<"unsignedCharValue", &valueAs<unsigned char>>()
      .method<"shortValue", &valueAs<short>>()
      .method<"unsignedShortValue", &valueAs<unsigned short>>()
      .method<"intValue", &valueAs<int>>()
      .method<"unsignedIntValue", &valueAs<unsigned int>>()
      .method<"longValue", &valueAs<long>>()
      .method<"unsignedLongValue", &valueAs<unsigned long>>()
      .method<"longLongValue", &valueAs<long long>>()
      .method<"unsignedLongLongValue", &valueAs<unsigned long long>>()
      .method<"integerValue", &valueAs<long>>()
      .method<"unsignedIntegerValue", &valueAs<unsigned long>>()
      .method<"floatValue", &valueAs<float>>()
      .method<"doubleValue", &valueAs<double>>();
}

}  // namespace

std::string NSNumber::text() const {
  if (letter == 'f') return printed("%0.7g", real);
  if (letter == 'd') return printed("%0.16g", real);
  return isUnsigned() ? std::to_string(bits()) : std::to_string(integer);
}

std::partial_ordering NSNumber::compareTo(const NSNumber& other) const {
  if (isReal() && other.isReal()) return real <=> other.real;
  // Both 64-bit integers and doubles fit a long double without loss, on x86-64 and on arm64.
  return as<long double>() <=> other.as<long double>();
}

void NSNumber::registerClass() {
  StandIn<NSNumber> standIn("Foundation", "NSNumber", "NSValue");
  addFactories(standIn);
  addInitialisers(standIn);
  addValues(standIn);
  standIn.method<"objCType", &objCType>()
      .method<"getValue:", &getValue>()
      .method<"isEqual:", &isEqual>()
      .method<"isEqualToValue:", &isEqual>()
      .method<"isEqualToNumber:", &isEqual>()
      .method<"compare:", &compare>()
      .method<"hash", &hash>()
      .method<"stringValue", &stringValue>()
      .method<"description", &stringValue>()
      .method<"copyWithZone:", &shareAsCopy>()
      .finish();
}

}  // namespace sim
