// Values of a domain as C types. What answers the conversion is converted, numbers and strings
// alike; what does not is 0 or NO.
#pragma once

#include "objc/Message.h"

namespace sim {

template <class T>
T converted(objc::Object value);

template <>
inline bool converted(objc::Object value) {
  return objc::respondsTo<"boolValue">(value) && objc::send<bool, "boolValue">(value);
}

template <>
inline long converted(objc::Object value) {
  return objc::respondsTo<"integerValue">(value) ? objc::send<long, "integerValue">(value) : 0;
}

// Strings do not answer this one.
template <>
inline unsigned long converted(objc::Object value) {
  return objc::respondsTo<"unsignedIntegerValue">(value)
             ? objc::send<unsigned long, "unsignedIntegerValue">(value)
             : 0;
}

template <>
inline double converted(objc::Object value) {
  return objc::respondsTo<"doubleValue">(value) ? objc::send<double, "doubleValue">(value) : 0;
}

}  // namespace sim
