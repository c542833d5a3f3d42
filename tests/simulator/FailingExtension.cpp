// An extension that ends its host in every way there is.
#include <csignal>
#include <cstdlib>
#include <stdexcept>

#include "objc/Class.h"

namespace {

IMP pauseBefore = nullptr;
bool failsInHook = false;

// Another function than its caller, whatever the compiler would make of it.
[[gnu::noinline]] void readNowhere() {
  *static_cast<volatile int*>(nullptr) = 1;
}

void pause(id self, SEL selector) {
  if (failsInHook) readNowhere();
  reinterpret_cast<void (*)(id, SEL)>(pauseBefore)(self, selector);
}

[[gnu::noinline]] int endless(int depth) {
  volatile int here = depth;
  return here == -1 ? 0 : endless(here + 1) + here;
}

struct Failing : objc::Implementation<Failing> {
  static void readsNowhere() { readNowhere(); }
  static void aborts() { std::abort(); }
  static void exits() { std::exit(0); }
  static void exitsAtOnce() { _Exit(3); }
  static void throws() { throw std::runtime_error("nobody catches this"); }
  static void recurses() { endless(0); }
  static void takesAllMemory() {
    for (;;) static_cast<volatile char*>(operator new(std::size_t(64) << 20))[0] = 1;
  }
  static void divides() { std::raise(SIGFPE); }
  static void hangs() {
    for (volatile bool forever = true; forever;) continue;
  }
  static void failInHook() { failsInHook = true; }
};

[[gnu::constructor]] void load() {
  objc::ClassBuilder<Failing>("Failing", "NSObject")
      .classMethod<"readsNowhere", &Failing::readsNowhere>()
      .classMethod<"aborts", &Failing::aborts>()
      .classMethod<"exits", &Failing::exits>()
      .classMethod<"exitsAtOnce", &Failing::exitsAtOnce>()
      .classMethod<"throws", &Failing::throws>()
      .classMethod<"recurses", &Failing::recurses>()
      .classMethod<"takesAllMemory", &Failing::takesAllMemory>()
      .classMethod<"divides", &Failing::divides>()
      .classMethod<"hangs", &Failing::hangs>()
      .classMethod<"failInHook", &Failing::failInHook>()
      .finish();
  MSHookMessageEx(objc_getClass("SBMediaController"), sel_registerName("pause"),
                  reinterpret_cast<IMP>(&pause), &pauseBefore);
}

}  // namespace
