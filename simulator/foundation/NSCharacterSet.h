#pragma once

#include <string>

#include "objc/Class.h"

namespace sim {

struct NSCharacterSet : objc::Implementation<NSCharacterSet> {
  bool (*test)(char16_t unit) = nullptr;  // of a set that the system has
  std::u16string members;  // UTF-16 units; those beyond the first 65,536 characters are halved
  bool inverted = false;   // all but the members

  bool contains(char16_t unit) const;
  objc::Object invertedSet() const;

  static void registerClass();
};

}  // namespace sim
