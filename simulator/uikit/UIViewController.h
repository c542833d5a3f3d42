// A view controller, so far without a view.
#pragma once

#include "objc/Class.h"

namespace sim {

struct UIViewController : objc::Implementation<UIViewController> {
  static void registerClass();
};

}  // namespace sim
