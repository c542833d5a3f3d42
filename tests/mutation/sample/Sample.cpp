#include "tests/mutation/sample/Sample.h"

#include "platform/Dispatch.h"

#define EXPORTED extern "C" __attribute__((visibility("default")))

namespace {

int last;

void keep(int value) {
  last = last * 10 + value;
}

}  // namespace

// Whether ten itself is cut makes no difference: the compiler gives the same code.
EXPORTED int capped(int value) {
  if (value > 10) return 10;
  return doubled(value) / 2;
}

EXPORTED void keepTwo() {
  keep(1);
  keep(2);
}

EXPORTED void keepLater(int value) {
  dispatch::onMain([value] { keep(value); });
  keep(9);
}

EXPORTED int kept() {
  return last;
}
