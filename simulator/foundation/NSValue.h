// NSValue: bytes of any C type with their encoding. NSNumber derives from it.
#pragma once

#include <string>
#include <string_view>

#include "objc/Class.h"

namespace sim {

struct NSValue : objc::Implementation<NSValue> {
  std::string type;   // encoding
  std::string bytes;  // as many as the type has

  objc::Object initWithBytes(const void* source, const char* encoding);
  void getValue(void* target) const;
  void getValueSize(void* target, unsigned long size) const;
  const char* objCType() const { return type.c_str(); }
  void* pointerValue() const;
  objc::Object nonretainedObjectValue() const;
  bool isEqual(objc::Object other) const;
  unsigned long hash() const;
  objc::Object description() const;

  static void registerClass();
};

// Autoreleased. The bytes are copied.
objc::Object valueOf(const void* bytes, std::string_view encoding);

// How many bytes a value of the type takes; 0 for a type that cannot be held.
unsigned long sizeOfType(std::string_view encoding);

// "{{0, 20}, {320, 44.5}}"
std::string structureNotation(std::string_view encoding, const void* bytes);

}  // namespace sim
