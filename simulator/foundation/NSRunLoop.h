#pragma once

#include "objc/Class.h"
#include "simulator/machine/RunLoopMode.h"

namespace sim {

struct NSRunLoop : objc::Implementation<NSRunLoop> {
  static void registerClass();
};

// The modes that a name stands for; none for one of somebody's own.
RunLoopModes modesNamed(objc::Object name);
RunLoopModes joined(RunLoopModes a, RunLoopModes b);

}  // namespace sim

extern "C" {
extern id NSDefaultRunLoopMode;  // NSString*
extern id NSRunLoopCommonModes;  // NSString*
}
