// A virtual function: its table holds pointers to code.
#include "objc/runtime.h"

struct Base {
  virtual void act() { objc_release(nullptr); }
};

extern "C" [[gnu::visibility("default")]] Base preferences;
Base preferences;
