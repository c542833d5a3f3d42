#pragma once

#include "objc/Class.h"

namespace sim {

struct NSNumberFormatter : objc::Implementation<NSNumberFormatter> {
  objc::Strong<objc::Object> locale;  // empty: the current one

  objc::Object effectiveLocale() const;
  void setLocale(objc::Object given);
  objc::Object stringFromNumber(objc::Object number) const;

  static void registerClass();
};

}  // namespace sim
