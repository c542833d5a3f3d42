// Blocks as a compiler stores them that does not know the platform's signatures. Several, because
// one unsigned pointer in 128 looks signed.
#include "objc/runtime.h"

extern "C" {
[[gnu::visibility("default")]] id preferences;
extern char _dispatch_main_q;
void dispatch_async(void* queue, id block);
}

namespace {

struct Block {
  void* isa;
  int flags;
  int reserved;
  void (*invoke)(Block*);
  void* descriptor;
};

void run(Block*) {}

struct Load {
  Load() {
    Block blocks[4];
    for (Block& block : blocks) {
      block = {_NSConcreteStackBlock, 0, 0, run, nullptr};
      dispatch_async(&_dispatch_main_q, reinterpret_cast<id>(&block));
    }
  }
} load;

}  // namespace
