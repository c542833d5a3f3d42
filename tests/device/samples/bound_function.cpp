// A static pointer to a function of the phone: the loader would store it unsigned.
#include "objc/runtime.h"

extern "C" {
[[gnu::visibility("default")]] void (*preferences)(id) = objc_release;
}
