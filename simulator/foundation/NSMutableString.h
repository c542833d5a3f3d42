#pragma once

#include "objc/Class.h"
#include "simulator/foundation/NSRange.h"

namespace sim {

// Its text is NSString's state.
struct NSMutableString : objc::Implementation<NSMutableString> {
  void appendString(objc::Object other);
  void setString(objc::Object other);
  void insertString(objc::Object other, unsigned long index);
  void deleteCharactersInRange(NSRange range);
  objc::Object initWithCapacity(unsigned long capacity);
  objc::Object copyWithZone(void* zone) const;  // +1

  static void registerClass();
};

}  // namespace sim
