// expected: the selector has another number of colons than the message has arguments
#include "objc/Message.h"

// One argument is fixed; the others follow it without a colon.
auto run(Class strings, objc::Object format) {
  return objc::sendVariadic<objc::Object, "stringWithFormat:locale:">(strings, format, 1L);
}
