#include "simulator/foundation/NSNull.h"

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

objc::Object describe(objc::Object) {
  return string("<null>");
}

}  // namespace

objc::Object NSNull::null() {
  static const objc::Object only = make().detach();
  return only;
}

void NSNull::registerClass() {
  StandIn<NSNull>("Foundation", "NSNull", "NSObject")
      .classMethod<"null", &NSNull::null>()
      .method<"description", &describe>()
      .method<"copyWithZone:", &shareAsCopy>()
      .finish();
}

}  // namespace sim
