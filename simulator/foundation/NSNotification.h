#pragma once

#include "objc/Class.h"

namespace sim {

struct NSNotification : objc::Implementation<NSNotification> {
  objc::Strong<objc::Object> name;
  objc::Strong<objc::Object> object;
  objc::Strong<objc::Object> userInfo;

  static void registerClass();
};

// Autoreleased.
objc::Object notification(objc::Object name, objc::Object object, objc::Object userInfo);

}  // namespace sim
