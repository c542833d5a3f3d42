#include "simulator/foundation/Exception.h"

#include <array>
#include <cstdio>

#include "simulator/runtime/Fatal.h"
#include "simulator/runtime/ShownAddresses.h"

namespace sim {

void raiseException(const char* name, const std::string& reason) {
  sim::runtime::fatal("*** Terminating app due to uncaught exception '%s', reason: '%s'", name,
                      reason.c_str());
}

std::string methodName(objc::Object receiver, const char* selector) {
  const char kind = object_isClass(receiver.get()) ? '+' : '-';
  return std::string(1, kind) + '[' + object_getClassName(receiver.get()) + ' ' + selector + ']';
}

void requireObject(objc::Object receiver, const char* selector, objc::Object argument) {
  if (argument) return;
  raiseException("NSInvalidArgumentException",
                 "*** " + methodName(receiver, selector) + ": object cannot be nil");
}

void requireElement(const char* collection, objc::Object element, std::size_t index) {
  if (element) return;
  raiseException("NSInvalidArgumentException", std::string("*** -[") + collection +
                                                   " initWithObjects:count:]: attempt to insert "
                                                   "nil object from objects[" +
                                                   std::to_string(index) + "]");
}

void raiseWrongClass(const char* selector, objc::Object argument, const char* wanted) {
  raiseException("NSInvalidArgumentException",
                 std::string(selector) + " expected an object of class " + wanted +
                     ", found one of class " + object_getClassName(argument.get()));
}

std::string addressDescription(objc::Object object) {
  std::array<char, 24> address;
  std::snprintf(address.data(), address.size(), ": 0x%zx>", runtime::shownAddress(object.get()));
  return std::string("<") + object_getClassName(object.get()) + address.data();
}

}  // namespace sim
