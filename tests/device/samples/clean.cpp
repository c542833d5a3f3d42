// A small extension that a phone would load: a class made at run time, a hook, a block, and a table
// of strings. Every check must pass it.
#include "objc/PointerAuthentication.h"
#include "objc/runtime.h"

extern "C" {
[[gnu::visibility("default")]] const char* preferences = "nothing yet";
}

namespace {

struct Block {
  void* isa;
  int flags;
  int reserved;
  void* invoke;
  const void* descriptor;
};

// The tables a phone may relocate: text and the address of a variable, never of a function.
const char* const names[] = {"first", "second", "third"};
void** const classes[] = {_NSConcreteStackBlock, _NSConcreteMallocBlock};

struct Descriptor {
  unsigned long reserved;
  unsigned long size;
  const char* signature;
};
Descriptor descriptor{0, sizeof(Block), "v8@?0"};

IMP previous;

void greet(id object, SEL name) {
  if (previous != nullptr) reinterpret_cast<void (*)(id, SEL)>(previous)(object, name);
}

void run(Block*) {
  objc_release(nullptr);
}

void* makeBlock(unsigned long kind) {
  Block block{};
  objc::storeBlockClass(&block.isa, classes[kind]);
  block.flags = 1 << 30;
  objc::storeBlockFunction(&block.invoke, &run);
  block.descriptor = &descriptor;
  return _Block_copy(&block);
}

struct Load {
  Load() {
    // Which, the compiler cannot know: the tables stay.
    const auto first = static_cast<unsigned char>(*sel_getName(sel_registerName("first")));
    Class cls = objc_allocateClassPair(objc_getClass("NSObject"), names[first % 3], 0);
    class_addMethod(cls, sel_registerName("greet"), reinterpret_cast<IMP>(&greet), "v@:");
    objc_registerClassPair(cls);
    MSHookMessageEx(cls, sel_registerName("greet"), reinterpret_cast<IMP>(&greet), &previous);
    _Block_release(makeBlock(first % 2));
    preferences = sel_getName(sel_registerName(names[first % 2]));
  }
} load;

}  // namespace
