// expected: the selector has another number of colons than the function has arguments
#include "objc/Class.h"

// The receiver is no argument of the message.
long twice(objc::Object, long number) {
  return 2 * number;
}

void run(Class host) {
  objc::addMethod<"twice", twice>(host);
}
