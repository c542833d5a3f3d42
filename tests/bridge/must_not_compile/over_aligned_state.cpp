// expected: a state is aligned to 16 bytes at most, as objects are: hold the rest by pointer
#include "objc/Class.h"

struct alignas(32) Wide : objc::Implementation<Wide> {
  char bytes[32];
};

Class run() {
  return objc::ClassBuilder<Wide>("Wide", "NSObject").finish();
}
