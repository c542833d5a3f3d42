// expected: owners do not cross the bridge: pass get\(\)
#include "objc/Message.h"
#include "objc/Ownership.h"

void run(objc::Object list, objc::Strong<objc::Object> item) {
  objc::send<void, "addObject:">(list, item);
}
