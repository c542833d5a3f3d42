#include "simulator/foundation/NSObject.h"

#include "simulator/foundation/DelayedPerforms.h"
#include "simulator/foundation/Exception.h"
#include "simulator/foundation/KeyValueCoding.h"
#include "simulator/foundation/Values.h"

namespace sim {
namespace {

using objc::Object;

Object describe(Object self) {
  return string(addressDescription(self));
}

Object debugDescription(Object self) {
  return objc::send<Object, "description">(self);
}

Object describeClass(Object self) {
  return string(class_getName(reinterpret_cast<Class>(self.get())));
}

}  // namespace

void addObjectMethods() {
  addToRootClass<"description", &describe>();
  addToRootClass<"debugDescription", &debugDescription>();
  const Class metaclass = objc_getMetaClass("NSObject");
  if (FidelityPage("Foundation", "NSObject").record('+', "description", {Grade::real, ""}))
    objc::addMethod<"description", &describeClass>(metaclass);
  addDelayedPerforms();
  addKeyValueCoding();
}

}  // namespace sim
