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

void addTimer(Object, Object timer, Object mode) {
  if (NSTimer* state = stateOf<NSTimer>(timer)) state->scheduleIn(modesNamed(mode));
}

id constant(const char* name, const char* value) {
  recordFunction("Foundation", name, {Grade::real, ""});
  return objc_retain(string(value).get());
}

}  // namespace

RunLoopModes modesNamed(Object name) {
  const std::string mode = text(name);
  const bool isCommon = mode == "kCFRunLoopCommonModes";
  return {isCommon || mode == "kCFRunLoopDefaultMode", isCommon || mode == "UITrackingRunLoopMode"};
}

RunLoopModes joined(RunLoopModes a, RunLoopModes b) {
  return {a.inDefault || b.inDefault, a.inTracking || b.inTracking};
}

void NSRunLoop::registerClass() {
  StandIn<NSRunLoop>("Foundation", "NSRunLoop", "NSObject")
      .classMethod<"mainRunLoop", &mainRunLoop>()
      .partialClassMethod<"currentRunLoop", &mainRunLoop>("the main run loop on every thread")
      .method<"addTimer:forMode:", &addTimer>()
      .finish();
  const objc::AutoreleasePool pool;  // the phone boots before there is any other
  NSDefaultRunLoopMode = constant("NSDefaultRunLoopMode", "kCFRunLoopDefaultMode");
  NSRunLoopCommonModes = constant("NSRunLoopCommonModes", "kCFRunLoopCommonModes");
}

}  // namespace sim
