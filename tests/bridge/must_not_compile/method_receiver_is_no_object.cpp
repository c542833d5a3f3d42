// expected: the first parameter is the receiver
#include "objc/Class.h"

long twice(long number) {
  return 2 * number;
}

void run(Class host) {
  objc::addMethod<"twice", twice>(host);
}
