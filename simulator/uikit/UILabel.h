// A line of text.
#pragma once

#include "objc/Class.h"

namespace sim {

struct UILabel : objc::Implementation<UILabel> {
  objc::Strong<objc::Object> text;  // NSString, a copy; nil shows nothing

  void setText(objc::Object shown);

  static void registerClass();
};

}  // namespace sim
