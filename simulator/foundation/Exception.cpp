#include "simulator/foundation/Exception.h"

#include <array>
#include <cstdio>

#include "simulator/runtime/Fatal.h"

namespace sim {

void raiseException(const char* name, const std::string& reason) {
  simulator::runtime::fatal("*** Terminating app due to uncaught exception '%s', reason: '%s'",
                            name, reason.c_str());
}

std::string methodName(objc::Object receiver, const char* selector) {
  const char kind = object_isClass(receiver.get()) ? '+' : '-';
  return std::string(1, kind) + '[' + object_getClassName(receiver.get()) + ' ' + selector + ']';
}

std::string addressDescription(objc::Object object) {
  std::array<char, 24> address;
  std::snprintf(address.data(), address.size(), ": %p>", static_cast<void*>(object.get()));
  return std::string("<") + object_getClassName(object.get()) + address.data();
}

}  // namespace sim
