// Numbers in the digits that the user reads.
#pragma once

#include "objc/Class.h"
#include "platform/Foundation.h"

struct LocalizationHelper : objc::Implementation<LocalizationHelper> {
  static NSString getLocalizedNumberStringFrom(long number);
  // Every Western digit in its localised form.
  static NSString replaceNumbersWithLocalizedNumbersFromString(NSString text);
  static bool languageSupportsPlural();

  static Class registerClass();
};
