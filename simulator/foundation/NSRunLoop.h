#pragma once

#include "objc/Class.h"

namespace sim {

struct NSRunLoop : objc::Implementation<NSRunLoop> {
  static void registerClass();
};

}  // namespace sim

extern "C" {
extern id NSDefaultRunLoopMode;  // NSString*
extern id NSRunLoopCommonModes;  // NSString*
}
