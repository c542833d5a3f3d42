// expected: captures are over-aligned
#include "objc/Block.h"

struct alignas(64) Line {
  char bytes[64];
};

auto run(Line line) {
  return objc::block<char()>([line] { return line.bytes[0]; });
}
