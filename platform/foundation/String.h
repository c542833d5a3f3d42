// Texts.
#pragma once

#include "objc/Message.h"

struct NSArray;  // Collection.h

struct NSString : objc::Object {
  using Object::Object;
  static Class cls() { return objc::classNamed<"NSString">(); }
  static NSString string(const char* utf8) {
    return objc::send<NSString, "stringWithUTF8String:">(objc::classNamed<"NSString">(), utf8);
  }
  const char* UTF8String() const { return objc::send<const char*, "UTF8String">(*this); }
  bool isEqual(objc::Object other) const { return objc::send<bool, "isEqual:">(*this, other); }
  bool isEqualToString(NSString other) const {
    return objc::send<bool, "isEqualToString:">(*this, other);
  }
  float floatValue() const { return objc::send<float, "floatValue">(*this); }
  bool containsString(NSString other) const {
    return objc::send<bool, "containsString:">(*this, other);
  }
  NSString stringByReplacingOccurrencesOfString(NSString wanted, NSString replacement) const {
    return objc::send<NSString, "stringByReplacingOccurrencesOfString:withString:">(*this, wanted,
                                                                                    replacement);
  }
  // The arguments are those of the format, as the platform reads them: int for "%d", long for
  // "%ld", double for "%g", an object for "%@".
  template <class... Arguments>
  static NSString stringWithFormat(NSString format, Arguments... arguments) {
    return objc::sendVariadic<NSString, "stringWithFormat:">(cls(), format, arguments...);
  }
  NSString stringByTrimmingWhitespaceAndNewlines() const {
    const auto blanks = objc::send<objc::Object, "whitespaceAndNewlineCharacterSet">(
        objc::classNamed<"NSCharacterSet">());
    return objc::send<NSString, "stringByTrimmingCharactersInSet:">(*this, blanks);
  }
  unsigned long length() const { return objc::send<unsigned long, "length">(*this); }
  NSArray componentsSeparatedByString(NSString separator) const;
  long integerValue() const { return objc::send<long, "integerValue">(*this); }
  NSString stringByAppendingPathComponent(NSString component) const {
    return objc::send<NSString, "stringByAppendingPathComponent:">(*this, component);
  }
  NSString stringByAppendingString(NSString other) const {
    return objc::send<NSString, "stringByAppendingString:">(*this, other);
  }
};

// A string literal as the platform's string, made when it is needed: constant strings cannot be
// linked into the extension (their isa would have to be signed).
inline NSString operator""_ns(const char* text, std::size_t) {
  return NSString::string(text);
}

struct NSMutableString : NSString {
  using NSString::NSString;
  static NSMutableString string() {
    return objc::send<NSMutableString, "string">(objc::classNamed<"NSMutableString">());
  }
  void appendString(NSString text) const { objc::send<void, "appendString:">(*this, text); }
};
