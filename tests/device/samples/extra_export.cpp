// Shows a function that nobody asked for, and not the variable that somebody did.
#include "objc/runtime.h"

extern "C" [[gnu::visibility("default")]] void helper() {
  objc_release(nullptr);
}
