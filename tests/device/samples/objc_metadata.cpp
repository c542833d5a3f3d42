// A string literal of the platform's kind, with its class pointer in static data.
#include "objc/runtime.h"

extern "C" [[gnu::visibility("default")]] const void* preferences() {
  return objc_retain(id(__builtin___CFStringMakeConstantString("literal")));
}
