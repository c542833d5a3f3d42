#include <mutex>
#include <string_view>

#include "simulator/runtime/Class.h"
#include "simulator/runtime/ClassChanges.h"
#include "simulator/runtime/ClassRegistry.h"
#include "simulator/runtime/Lists.h"

using namespace sim::runtime;

namespace {

// Called with runtimeLock() held. nullptr when the class itself has no such property.
objc_property_t findOwnProperty(Class cls, const char* name) {
  for (const auto& property : cls->data->properties)
    if (property->name == name) return property.get();
  return nullptr;
}

// Called with runtimeLock() held. Searches the superclasses too.
objc_property_t findProperty(Class cls, const char* name) {
  for (; cls != nullptr; cls = cls->superclass)
    if (const objc_property_t property = findOwnProperty(cls, name)) return property;
  return nullptr;
}

// As the compiler writes it: T@"A",&,N,V_p. A name of more than one letter stands in quotes.
std::string attributeString(const objc_property_attribute_t* attributes, unsigned int count) {
  std::string text;
  for (unsigned int i = 0; i < count; ++i) {
    const std::string_view name = attributes[i].name != nullptr ? attributes[i].name : "";
    if (name.empty() || attributes[i].value == nullptr) continue;
    text += text.empty() ? "" : ",";
    text += name.size() > 1 ? '"' + std::string(name) + '"' : std::string(name);
    text += attributes[i].value;
  }
  return text;
}

}  // namespace

bool class_addProperty(Class cls, const char* name, const objc_property_attribute_t* attributes,
                       unsigned int count) {
  if (cls == nullptr || name == nullptr) return false;
  const std::string text = attributeString(attributes, count);
  {
    const std::lock_guard guard(runtimeLock());
    if (findProperty(cls, name) != nullptr) return false;
    cls->data->properties.emplace_back(new objc_property{name, text});
  }
  if (cls->has(ClassFlag::registered))
    reportClassChange({ClassChange::Kind::propertyAdded, cls, name, text.c_str()});
  return true;
}

objc_property_t class_getProperty(Class cls, const char* name) {
  if (name == nullptr) return nullptr;
  const std::lock_guard guard(runtimeLock());
  return findProperty(cls, name);
}

objc_property_t* class_copyPropertyList(Class cls, unsigned int* count) {
  const std::lock_guard guard(runtimeLock());
  return copyNewestFirst(cls != nullptr ? &cls->data->properties : nullptr, count);
}

const char* property_getName(objc_property_t property) {
  return property != nullptr ? property->name.c_str() : nullptr;
}

const char* property_getAttributes(objc_property_t property) {
  return property != nullptr ? property->attributes.c_str() : nullptr;
}
