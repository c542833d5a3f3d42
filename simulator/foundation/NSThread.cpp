#include "simulator/foundation/NSThread.h"

#include <thread>

#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

std::thread::id mainThreadId;

Object mainThread() {
  static const Object only = [] {
    const Object made = NSThread::make().detach();
    NSThread::of(made).isMain = true;
    return made;
  }();
  return only;
}

Object currentThread() {
  // Other threads are told apart by their objects, which live as long as the thread.
  thread_local objc::Strong<Object> background;
  if (isMainThread()) return mainThread();
  if (!background) background = NSThread::make();
  return background;
}

bool isItMain(Object self) {
  return NSThread::of(self).isMain;
}

Object name(Object self) {
  return isItMain(self) ? string("main") : string("");
}

}  // namespace

bool isMainThread() {
  return std::this_thread::get_id() == mainThreadId;
}

void NSThread::registerClass() {
  mainThreadId = std::this_thread::get_id();
  StandIn<NSThread>("Foundation", "NSThread", "NSObject")
      .classMethod<"isMainThread", &sim::isMainThread>()
      .classMethod<"mainThread", &mainThread>()
      .classMethod<"currentThread", &currentThread>()
      .method<"isMainThread", &isItMain>()
      .method<"name", &name>()
      .finish();
}

}  // namespace sim
