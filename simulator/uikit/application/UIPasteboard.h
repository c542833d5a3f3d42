#pragma once

#include "objc/Class.h"

namespace sim {

struct UIPasteboard : objc::Implementation<UIPasteboard> {
  objc::Strong<objc::Object> string;  // NSString; nil when it holds no text

  static objc::Object generalPasteboard();  // the one object, never freed
  void setString(objc::Object text);        // journalled

  static void registerClass();
};

}  // namespace sim
