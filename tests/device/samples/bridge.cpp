// Uses what the extension is made of: a class with methods and properties, a hook that calls what
// it replaced, and a block that owns what it captured.
#include "objc/Block.h"
#include "objc/Class.h"
#include "objc/Hook.h"

extern "C" {
[[gnu::visibility("default")]] id preferences;
extern char _dispatch_main_q;
void dispatch_async(void* queue, id block);
}

namespace {

struct Host : objc::Object {
  using Object::Object;
};

struct Counter : objc::Implementation<Counter> {
  long count;
  void add(long n) { count += n; }

  static Class registerClass() {
    return objc::ClassBuilder<Counter>("Counter", "NSObject")
        .method<"add:", &Counter::add>()
        .property<"count", &Counter::count>()
        .finish();
  }
};

void act(objc::Original<void(Host)> original, Host self) {
  original(self);
  objc::Strong<Host> kept = objc::retain(self);
  auto block =
      objc::block<void()>([kept = std::move(kept)] { objc::send<void, "done">(kept.get()); });
  dispatch_async(&_dispatch_main_q, block.get().get());
}

struct Load {
  Load() {
    Counter::registerClass();
    objc::hook<"Host", "act", act>();
  }
} load;

}  // namespace
