// A view controller, so far without a view.
#pragma once

#include "objc/Class.h"

namespace sim {

struct UIViewController : objc::Implementation<UIViewController> {
  objc::Strong<objc::Object> nibName;    // NSString; nil: none
  objc::Strong<objc::Object> nibBundle;  // NSBundle; nil: none

  objc::Object init();
  objc::Object initWithNibName_bundle(objc::Object name, objc::Object bundle);

  static void registerClass();
};

}  // namespace sim
