// expected: long double results are not bridged
#include "objc/Message.h"

long double run(objc::Object object) {
  return objc::send<long double, "value">(object);
}
