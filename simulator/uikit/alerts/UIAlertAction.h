// A button of an alert.
#pragma once

#include "objc/Block.h"
#include "objc/Class.h"

namespace sim {

struct UIAlertAction : objc::Implementation<UIAlertAction> {
  using Handler = objc::Block<void(objc::Object)>;

  objc::Strong<objc::Object> title;  // NSString
  objc::Strong<Handler> handler;
  long style = 0;  // 0 default, 1 cancel, 2 destructive
  bool enabled = true;

  static objc::Object make(id cls, objc::Object title, long style, Handler handler);
  static void registerClass();
};

}  // namespace sim
