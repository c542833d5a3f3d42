// expected: the selector has another number of colons than the function has arguments
#include "objc/Class.h"

struct Counter : objc::Implementation<Counter> {
  static id counterFrom(long) { return nullptr; }
};

void run() {
  objc::ClassBuilder<Counter>("Counter", "NSObject")
      .classMethod<"counter", &Counter::counterFrom>();
}
