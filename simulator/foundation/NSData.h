#pragma once

#include <string>

#include "objc/Class.h"

namespace sim {

struct NSData : objc::Implementation<NSData> {
  std::string content;

  static void registerClass();
};

// Autoreleased.
objc::Object dataOf(std::string content);

}  // namespace sim
