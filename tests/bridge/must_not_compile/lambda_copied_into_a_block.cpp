// expected: move the lambda into its block
#include "objc/Block.h"

auto run() {
  const auto later = [] {};
  return objc::block<void()>(later);
}
