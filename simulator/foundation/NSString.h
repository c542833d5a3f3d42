// NSString and, on top of its state, NSMutableString.
#pragma once

#include <cstdarg>
#include <string>

#include "objc/Class.h"
#include "simulator/foundation/NSRange.h"

namespace sim {

struct NSString : objc::Implementation<NSString> {
  std::u16string units;  // UTF-16, as length and ranges count
  std::string utf8;      // what UTF8String gave away last

  objc::Object initWithUTF8String(const char* bytes);
  objc::Object initWithString(objc::Object other);
  objc::Object initWithData(objc::Object data, unsigned long encoding);
  objc::Object initWithContentsOfFile(objc::Object path, unsigned long encoding,
                                      objc::Object* error);
  bool writeToFile(objc::Object path, bool atomically, unsigned long encoding,
                   objc::Object* error) const;

  const char* UTF8String();
  unsigned long length() const { return units.size(); }
  char16_t characterAtIndex(unsigned long index) const;
  objc::Object dataUsingEncoding(unsigned long encoding) const;

  bool isEqual(objc::Object other) const;
  bool isEqualToString(objc::Object other) const;
  unsigned long hash() const;
  long compare(objc::Object other) const;
  long caseInsensitiveCompare(objc::Object other) const;

  objc::Object copyWithZone(void* zone) const;         // +1
  objc::Object mutableCopyWithZone(void* zone) const;  // +1
  objc::Object description() const;

  static void registerClass();
};

// The units of a string; raises for nil and for objects of other classes.
const std::u16string& unitsOf(objc::Object string);

// Autoreleased.
objc::Object stringOf(std::u16string units);

// -initWithFormat: and its kin: what the format and its arguments print.
std::u16string formatted(objc::Object format, std::va_list arguments);

}  // namespace sim
