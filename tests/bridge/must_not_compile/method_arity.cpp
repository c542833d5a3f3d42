// expected: the selector has another number of colons than the function has arguments
#include "objc/Class.h"

struct Counter : objc::Implementation<Counter> {
  void add(long, long) {}
};

void run() {
  objc::ClassBuilder<Counter>("Counter", "NSObject").method<"add:", &Counter::add>();
}
