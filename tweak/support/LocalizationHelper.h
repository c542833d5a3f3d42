// Numbers in the digits that the user reads.
#pragma once

#include "objc/Registration.h"
#include "platform/Foundation.h"

// Any thread.
struct LocalizationHelper : NSObject {
  using NSObject::NSObject;

  // In decimal; never nil.
  static NSString getLocalizedNumberStringFrom(long number) {
    return objc::send<NSString, "getLocalizedNumberStringFrom:">(cls(), number);
  }
  // Every Western digit in its localised form; the text itself where Western digits are read.
  static NSString replaceNumbersWithLocalizedNumbersFromString(NSString text) {
    return objc::send<NSString, "replaceNumbersWithLocalizedNumbersFromString:">(cls(), text);
  }

  static Class cls();  // nil until it is registered
  static objc::Registration registerClass();
};
