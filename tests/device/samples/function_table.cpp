// A static table of functions: the most natural way to write an unsigned pointer to code.
#include "objc/runtime.h"

namespace {
void first() {
  objc_release(nullptr);
}
void second() {
  objc_retain(nullptr);
}
}  // namespace

extern "C" {
[[gnu::visibility("default")]] void (*preferences[])() = {first, second};
}
