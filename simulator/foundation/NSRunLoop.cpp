#include "simulator/foundation/NSRunLoop.h"

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSTimer.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"

id NSDefaultRunLoopMode = nullptr;
id NSRunLoopCommonModes = nullptr;

namespace sim {
namespace {

using objc::Object;

Object mainRunLoop() {
  return onlyObject<NSRunLoop>();
}

void addTimer(Object, Object timer, Object) {
  if (NSTimer* state = stateOf<NSTimer>(timer)) state->schedule();
}

id constant(const char* name, const char* value) {
  recordFunction("Foundation", name, {Grade::real, ""});
  return objc_retain(string(value).get());
}

}  // namespace

void NSRunLoop::registerClass() {
  StandIn<NSRunLoop>("Foundation", "NSRunLoop", "NSObject")
      .classMethod<"mainRunLoop", &mainRunLoop>()
      .partialClassMethod<"currentRunLoop", &mainRunLoop>("the main run loop on every thread")
      .partial<"addTimer:forMode:", &addTimer>("the timer runs in every mode")
      .finish();
  const objc::AutoreleasePool pool;  // the phone boots before there is any other
  NSDefaultRunLoopMode = constant("NSDefaultRunLoopMode", "kCFRunLoopDefaultMode");
  NSRunLoopCommonModes = constant("NSRunLoopCommonModes", "kCFRunLoopCommonModes");
}

}  // namespace sim
