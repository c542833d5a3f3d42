// Animations as data: what they are told, by key. Nothing here moves with time.
#pragma once

#include <map>
#include <string>

#include "objc/Class.h"

namespace sim {

struct CAAnimation : objc::Implementation<CAAnimation> {
  // An animation keeps the value of any key.
  std::map<std::string, objc::Strong<objc::Object>> values;

  // With the kinds of animations, which add nothing to it.
  static void registerClass();
};

}  // namespace sim
