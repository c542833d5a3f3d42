#include <cstring>
#include <mutex>

#include "simulator/runtime/Class.h"
#include "simulator/runtime/ClassRegistry.h"
#include "simulator/runtime/Lists.h"

using namespace sim::runtime;

namespace {

// Called with runtimeLock() held. nullptr when the class itself has no such ivar.
Ivar findOwnIvar(Class cls, const char* name) {
  for (const auto& ivar : cls->data->ivars)
    if (ivar->name == name) return ivar.get();
  return nullptr;
}

char* storage(id object, Ivar ivar) {
  return reinterpret_cast<char*>(object) + ivar->offset;
}

}  // namespace

bool class_addIvar(Class cls, const char* name, std::size_t size, std::uint8_t alignment,
                   const char* types) {
  if (cls == nullptr || name == nullptr) return false;
  const std::lock_guard guard(runtimeLock());
  // Instances of a registered class may exist, and their size cannot change any more.
  if (cls->has(ClassFlag::registered) || cls->has(ClassFlag::metaclass) ||
      findOwnIvar(cls, name) != nullptr)
    return false;
  const std::size_t mask = (std::size_t{1} << alignment) - 1;
  const std::size_t offset = (cls->data->instanceSize + mask) & ~mask;
  cls->data->ivars.emplace_back(
      new objc_ivar{name, types != nullptr ? types : "", static_cast<std::ptrdiff_t>(offset)});
  cls->data->instanceSize = offset + size;
  return true;
}

Ivar class_getInstanceVariable(Class cls, const char* name) {
  if (name == nullptr) return nullptr;
  const std::lock_guard guard(runtimeLock());
  for (; cls != nullptr; cls = cls->superclass)
    if (const Ivar ivar = findOwnIvar(cls, name)) return ivar;
  return nullptr;
}

Ivar* class_copyIvarList(Class cls, unsigned int* count) {
  const std::lock_guard guard(runtimeLock());
  return copyOldestFirst(cls != nullptr ? &cls->data->ivars : nullptr, count);
}

const char* ivar_getName(Ivar ivar) {
  return ivar != nullptr ? ivar->name.c_str() : nullptr;
}

const char* ivar_getTypeEncoding(Ivar ivar) {
  return ivar != nullptr ? ivar->types.c_str() : nullptr;
}

std::ptrdiff_t ivar_getOffset(Ivar ivar) {
  return ivar != nullptr ? ivar->offset : 0;
}

id object_getIvar(id object, Ivar ivar) {
  if (object == nullptr || ivar == nullptr) return nullptr;
  id value = nullptr;
  std::memcpy(&value, storage(object, ivar), sizeof value);
  return value;
}

// As on the platform for ivars added at run time: the value is not retained.
void object_setIvar(id object, Ivar ivar, id value) {
  if (object != nullptr && ivar != nullptr)
    std::memcpy(storage(object, ivar), &value, sizeof value);
}
