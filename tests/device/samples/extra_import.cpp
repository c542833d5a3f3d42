// Calls a function that is on no list.
#include "objc/runtime.h"

extern "C" int getpid();
extern "C" [[gnu::visibility("default")]] int preferences;
int preferences = getpid();
