// expected: owners do not cross the bridge
#include "objc/Message.h"
#include "objc/Ownership.h"

auto run(objc::Object object) {
  return objc::send<objc::Strong<objc::Object>, "copy">(object);
}
