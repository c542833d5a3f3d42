// expected: the selector has another number of colons than the message has arguments
#include "objc/Message.h"

void run(objc::Object object) {
  objc::send<void, "layoutIfNeeded">(object, 1L);
}
