#include "simulator/foundation/NSError.h"

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

Object errorWith(id cls, Object domain, long code, Object info) {
  return autorelease(objc::adopt(objc::send<Object, "initWithDomain:code:userInfo:">(
      objc_alloc(reinterpret_cast<Class>(cls)), domain, code, info)));
}

}  // namespace

Object NSError::initWithDomain_code_userInfo(Object where, long number, Object info) {
  domain = objc::adopt(objc::send<Object, "copy">(where));
  userInfo = info ? objc::adopt(objc::send<Object, "copy">(info)) : objc::retain(dictionary({}));
  code = number;
  return Object(self());
}

Object NSError::localizedDescription() const {
  const Object given =
      objc::send<Object, "objectForKey:">(userInfo.get(), string("NSLocalizedDescription"));
  if (given) return given;
  return string("The operation couldn’t be completed. (" + text(domain) + " error " +
                std::to_string(code) + ".)");
}

Object NSError::description() const {
  return string("Error Domain=" + text(domain) + " Code=" + std::to_string(code) + " \"" +
                text(localizedDescription()) + '"');
}

void NSError::registerClass() {
  StandIn<NSError>("Foundation", "NSError", "NSObject")
      .factory<"errorWithDomain:code:userInfo:", &errorWith>()
      .method<"initWithDomain:code:userInfo:", &NSError::initWithDomain_code_userInfo>()
      .readonlyProperty<"domain", &NSError::domain>()
      .readonlyProperty<"code", &NSError::code>()
      .readonlyProperty<"userInfo", &NSError::userInfo>()
      .partial<"localizedDescription", &NSError::localizedDescription>("never localised")
      .partial<"description", &NSError::description>("without the user info")
      .finish();
}

}  // namespace sim
