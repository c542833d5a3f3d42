#include "simulator/script/values/KeyLookup.h"

#include <cctype>

#include "objc/Message.h"
#include "simulator/foundation/Values.h"

namespace sim {
namespace {

bool overrides(Class cls, const char* selector) {
  const SEL name = sel_registerName(selector);
  const Method method = class_getInstanceMethod(cls, name);
  return method != nullptr && method != class_getInstanceMethod(objc_getClass("NSObject"), name);
}

}  // namespace

bool hasValueForKey(objc::Object object, const std::string& key) {
  const Class cls = object_getClass(object.get());
  if (!objc::respondsTo<"valueForKey:">(object) || key.empty()) return false;
  // Collections and the like find values in ways of their own.
  if (overrides(cls, "valueForKey:") || overrides(cls, "valueForUndefinedKey:")) return true;
  std::string capital = key;
  capital[0] = char(std::toupper(static_cast<unsigned char>(capital[0])));
  for (const std::string& name : {"get" + capital, key, "is" + capital, "_" + key}) {
    if (class_respondsToSelector(cls, sel_registerName(name.c_str()))) return true;
  }
  for (const std::string& name : {"_" + key, "_is" + capital, key, "is" + capital}) {
    if (class_getInstanceVariable(cls, name.c_str()) != nullptr) return true;
  }
  return false;
}

}  // namespace sim
