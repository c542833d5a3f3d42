#include "simulator/foundation/KeyValueCoding.h"

#include <cctype>
#include <optional>
#include <vector>

#include "simulator/foundation/Boxing.h"
#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSArray.h"
#include "simulator/foundation/NSDictionary.h"
#include "simulator/foundation/NSMutableDictionary.h"
#include "simulator/foundation/NSNull.h"
#include "simulator/foundation/NSObject.h"
#include "simulator/foundation/TypeEncoding.h"
#include "simulator/foundation/Values.h"

namespace sim {
namespace {

using objc::Object;

std::string capitalised(std::string key) {
  if (!key.empty()) key[0] = char(std::toupper(static_cast<unsigned char>(key[0])));
  return key;
}

Method methodNamed(Object object, const std::string& name) {
  return class_getInstanceMethod(object_getClass(object.get()), sel_registerName(name.c_str()));
}

struct Place {
  void* bytes;
  const char* encoding;
};

// An instance variable for the key. Those of no type (the state of a class written in C++) count
// as none.
std::optional<Place> instanceVariable(Object object, const std::string& key) {
  for (const std::string& name :
       {'_' + key, "_is" + capitalised(key), key, "is" + capitalised(key)}) {
    const Ivar ivar = class_getInstanceVariable(object_getClass(object.get()), name.c_str());
    if (ivar == nullptr || !canBox(ivar_getTypeEncoding(ivar))) continue;
    char* start = reinterpret_cast<char*>(object.get());
    return Place{start + ivar_getOffset(ivar), ivar_getTypeEncoding(ivar)};
  }
  return std::nullopt;
}

Method accessor(Object object, const std::string& key) {
  const std::string upper = capitalised(key);
  for (const std::string& name : {"get" + upper, key, "is" + upper, '_' + key, "_get" + upper}) {
    const Method method = methodNamed(object, name);
    if (method != nullptr && canBox(method_getTypeEncoding(method))) return method;
  }
  return nullptr;
}

// Nothing when the object has neither an accessor nor a variable for the key.
std::optional<Object> find(Object object, const std::string& key) {
  if (const Method method = accessor(object, key))
    return sendBoxed(object, method_getName(method), method_getTypeEncoding(method));
  if (const auto place = instanceVariable(object, key)) return boxed(place->bytes, place->encoding);
  return std::nullopt;
}

bool overrides(Object object, const char* selector) {
  const Method method = methodNamed(object, selector);
  return method != class_getInstanceMethod(objc_getClass("NSObject"), sel_registerName(selector));
}

[[noreturn]] void raiseUnknown(Object self, const char* selector, Object key) {
  raiseException("NSUnknownKeyException",
                 "[" + addressDescription(self) + " " + selector +
                     "]: this class is not key value coding-compliant for the key " + text(key) +
                     ".");
}

Object valueForKey(Object self, Object key) {
  if (const auto value = find(self, text(key))) return *value;
  return objc::send<Object, "valueForUndefinedKey:">(self, key);
}

Object valueForUndefinedKey(Object self, Object key) {
  raiseUnknown(self, "valueForUndefinedKey:", key);
}

Object safeValueForKey(Object self, Object key) {
  return find(self, text(key)).value_or(Object());
}

// The third type of "v24@0:8q16".
std::string_view argumentType(Method method) {
  std::string_view types = method_getTypeEncoding(method);
  const std::size_t selector = types.find(':');
  types.remove_prefix(std::min(selector + 1, types.size()));
  types.remove_prefix(std::min(types.find_first_not_of("0123456789"), types.size()));
  return types;
}

bool isNilForScalar(Object self, std::string_view encoding, Object value, Object key) {
  const char letter = typeLetter(encoding);
  if (value || letter == '@' || letter == '#') return false;
  objc::send<void, "setNilValueForKey:">(self, key);
  return true;
}

void setValueForKey(Object self, Object value, Object key) {
  const std::string upper = capitalised(text(key));
  for (const std::string& name :
       {"set" + upper + ':', "_set" + upper + ':', "setIs" + upper + ':'}) {
    const Method method = methodNamed(self, name);
    if (method == nullptr || !canBox(argumentType(method))) continue;
    if (isNilForScalar(self, argumentType(method), value, key)) return;
    return sendUnboxed(self, method_getName(method), argumentType(method), value);
  }
  const auto place = instanceVariable(self, text(key));
  if (!place) return objc::send<void, "setValue:forUndefinedKey:">(self, value, key);
  if (!isNilForScalar(self, place->encoding, value, key))
    storeUnboxed(place->bytes, place->encoding, value);
}

void setValueForUndefinedKey(Object self, Object, Object key) {
  raiseUnknown(self, "setValue:forUndefinedKey:", key);
}

void setNilValueForKey(Object self, Object key) {
  raiseException("NSInvalidArgumentException",
                 "[" + addressDescription(self) +
                     " setNilValueForKey]: could not set nil as the value for the key " +
                     text(key) + ".");
}

Object valueForKeyPath(Object self, Object path) {
  const std::string keys = text(path);
  Object value = self;
  for (std::size_t from = 0; from <= keys.size() && value;) {
    const std::size_t dot = std::min(keys.find('.', from), keys.size());
    value = objc::send<Object, "valueForKey:">(value, string(keys.substr(from, dot - from)));
    from = dot + 1;
  }
  return value;
}

void setValueForKeyPath(Object self, Object value, Object path) {
  const std::string keys = text(path);
  const std::size_t dot = keys.rfind('.');
  if (dot == keys.npos) return objc::send<void, "setValue:forKey:">(self, value, path);
  const Object owner = objc::send<Object, "valueForKeyPath:">(self, string(keys.substr(0, dot)));
  objc::send<void, "setValue:forKey:">(owner, value, string(keys.substr(dot + 1)));
}

// Collections answer for what they hold.
Object valueForKeyOfArray(Object self, Object key) {
  const std::string name = text(key);
  if (name == "@count") return number(long(NSArray::of(self).elements.size()));
  if (name.starts_with('@')) raiseUnknown(self, "valueForKeyPath:", key);
  std::vector<Object> values;
  for (const auto& element : NSArray::of(self).elements) {
    const Object value = objc::send<Object, "valueForKey:">(element.get(), key);
    values.push_back(value ? value : NSNull::null());
  }
  return array(values);
}

Object valueForKeyOfDictionary(Object self, Object key) {
  const std::string name = text(key);
  if (name == "@count") return number(long(NSDictionary::of(self).table.size()));
  if (name.starts_with('@')) return valueForKey(self, string(name.substr(1)));
  return objc::send<Object, "objectForKey:">(self, key);
}

void setValueForKeyOfDictionary(Object self, Object value, Object key) {
  objc::send<void, "setObject:forKeyedSubscript:">(self, value, key);
}

}  // namespace

bool hasValueForKey(Object object, const std::string& key) {
  if (key.empty() || !objc::respondsTo<"valueForKey:">(object)) return false;
  // Collections and the like find values in ways of their own.
  if (overrides(object, "valueForKey:") || overrides(object, "valueForUndefinedKey:")) return true;
  return accessor(object, key) != nullptr || instanceVariable(object, key).has_value();
}

void addKeyValueCoding() {
  addToRootClass<"valueForKey:", &valueForKey>(
      "no collection proxies (countOfKey, objectInKeyAtIndex:)");
  addToRootClass<"valueForUndefinedKey:", &valueForUndefinedKey>();
  addToRootClass<"safeValueForKey:", &safeValueForKey>();
  addToRootClass<"setValue:forKey:", &setValueForKey>();
  addToRootClass<"setValue:forUndefinedKey:", &setValueForUndefinedKey>();
  addToRootClass<"setNilValueForKey:", &setNilValueForKey>();
  addToRootClass<"valueForKeyPath:", &valueForKeyPath>("of the collection operators only @count");
  addToRootClass<"setValue:forKeyPath:", &setValueForKeyPath>();
  objc::addMethod<"valueForKey:", &valueForKeyOfArray>(NSArray::cls());
  objc::addMethod<"valueForKey:", &valueForKeyOfDictionary>(NSDictionary::cls());
  objc::addMethod<"setValue:forKey:", &setValueForKeyOfDictionary>(NSMutableDictionary::cls());
}

}  // namespace sim
