#include "simulator/runtime/ClassRegistry.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "simulator/runtime/Absences.h"
#include "simulator/runtime/Class.h"
#include "simulator/runtime/ClassChanges.h"
#include "simulator/runtime/Fatal.h"
#include "simulator/runtime/MethodCache.h"
#include "simulator/runtime/ShownAddresses.h"

namespace sim::runtime {

std::mutex& runtimeLock() {
  static auto* lock = new std::mutex;
  return *lock;
}

namespace {

struct Registry {
  std::unordered_map<std::string_view, Class> byName;  // from allocation on: names stay unique
  std::vector<Class> registered;                       // in the order of registration
};

Registry& registry() {
  static auto* instance = new Registry;  // never destroyed: classes outlive all static objects
  return *instance;
}

Class findRegistered(const char* name) {
  const auto found = registry().byName.find(name);
  return found != registry().byName.end() && found->second->has(ClassFlag::registered)
             ? found->second
             : nullptr;
}

Class allocateClassMemory(std::size_t extraBytes) {
  void* memory = std::calloc(1, sizeof(objc_class) + extraBytes);
  if (memory == nullptr) throw std::bad_alloc();
  return new (memory) objc_class{};
}

void initClass(Class cls, Class isa, Class superclass, std::uint32_t flags) {
  storeIsa(cls->isa, isa);
  cls->superclass = superclass;
  cls->cache.store(&emptyMethodCache, std::memory_order_relaxed);
  cls->data = new ClassData;
  if (superclass != nullptr) {
    superclass->data->subclasses.push_back(cls);
    cls->data->instanceSize = superclass->data->instanceSize;
    flags |= superclass->flags.load() &
             (ClassFlag::inlineReferences | ClassFlag::blockClass | ClassFlag::cxxDestruct);
  } else {
    cls->data->instanceSize = sizeof(objc_object);
  }
  cls->flags.store(flags, std::memory_order_release);
}

// Called with the lock held.
void construct(Class cls, Class superclass, const char* name, std::size_t extraBytes) {
  Class metaclass = allocateClassMemory(extraBytes);
  initClass(cls, metaclass, superclass, 0);
  // Every metaclass is an instance of the root's metaclass, which is an instance of itself and
  // inherits from the root class: so class objects answer to the root's instance methods.
  Class rootMetaclass = superclass != nullptr ? superclass->metaclass()->metaclass() : metaclass;
  initClass(metaclass, rootMetaclass, superclass != nullptr ? superclass->metaclass() : cls,
            ClassFlag::metaclass);
  metaclass->data->instanceSize = sizeof(objc_class);
  for (Class one : {cls, metaclass}) {
    one->data->name = name;
    one->data->instanceClass = cls;
  }
  registry().byName.emplace(cls->data->name, cls);
}

void destroyClass(Class cls) {
  if (!cls->data->subclasses.empty()) {
    fatal("objc_disposeClassPair: class %s still has the subclass %s", cls->data->name.c_str(),
          cls->data->subclasses.front()->data->name.c_str());
  }
  if (cls->superclass != nullptr) std::erase(cls->superclass->data->subclasses, cls);
  freeCaches(cls);
  delete cls->data;
  endShownAddress(cls);
  std::free(cls);
}

}  // namespace

void constructClassPair(Class cls, Class superclass, const char* name, std::size_t extraBytes) {
  const std::lock_guard guard(runtimeLock());
  construct(cls, superclass, name, extraBytes);
}

void signClasses(void (*begin)()) {
  const std::lock_guard guard(runtimeLock());
  std::vector<std::pair<Class, Class>> isas;
  for (const auto& [name, cls] : registry().byName)
    for (Class one : {cls, cls->metaclass()}) isas.emplace_back(one, one->metaclass());
  begin();
  for (const auto& [cls, isa] : isas) storeIsa(cls->isa, isa);
}

}  // namespace sim::runtime

using namespace sim::runtime;

Class objc_lookUpClass(const char* name) {
  if (name == nullptr) return nullptr;
  ensureBootstrapped();
  const std::lock_guard guard(runtimeLock());
  return findRegistered(name);
}

Class objc_getClass(const char* name) {
  Class cls = objc_lookUpClass(name);
  if (cls == nullptr && name != nullptr) reportAbsence({nullptr, name});
  return cls;
}

Class objc_getMetaClass(const char* name) {
  Class cls = objc_lookUpClass(name);
  return cls != nullptr ? cls->metaclass() : nullptr;
}

int objc_getClassList(Class* buffer, int count) {
  ensureBootstrapped();
  const std::lock_guard guard(runtimeLock());
  const std::vector<Class>& all = registry().registered;
  if (buffer != nullptr && count > 0)
    std::copy_n(all.begin(), std::min(all.size(), static_cast<std::size_t>(count)), buffer);
  return static_cast<int>(all.size());
}

Class objc_allocateClassPair(Class superclass, const char* name, std::size_t extraBytes) {
  ensureBootstrapped();
  const std::lock_guard guard(runtimeLock());
  const bool unfinishedSuperclass =
      superclass != nullptr && !superclass->has(ClassFlag::registered);
  if (name == nullptr || unfinishedSuperclass || registry().byName.contains(name)) return nullptr;
  Class cls = allocateClassMemory(extraBytes);
  construct(cls, superclass, name, extraBytes);
  return cls;
}

void objc_registerClassPair(Class cls) {
  if (cls == nullptr) return;
  {
    const std::lock_guard guard(runtimeLock());
    if (cls->has(ClassFlag::metaclass) || cls->has(ClassFlag::registered)) {
      fatal("objc_registerClassPair: %s %s", cls->data->name.c_str(),
            cls->has(ClassFlag::metaclass) ? "is a metaclass" : "is registered already");
    }
    cls->metaclass()->flags.fetch_or(ClassFlag::registered, std::memory_order_release);
    cls->flags.fetch_or(ClassFlag::registered, std::memory_order_release);
    registry().registered.push_back(cls);
  }
  reportClassChange({ClassChange::Kind::classRegistered, cls, class_getName(cls), ""});
}

void objc_disposeClassPair(Class cls) {
  if (cls == nullptr) return;
  const std::lock_guard guard(runtimeLock());
  if (cls->has(ClassFlag::metaclass))
    fatal("objc_disposeClassPair: %s is a metaclass", cls->data->name.c_str());
  registry().byName.erase(cls->data->name);
  std::erase(registry().registered, cls);
  Class metaclass = cls->metaclass();
  if (cls->superclass == nullptr) {
    std::erase(cls->data->subclasses, metaclass);
    metaclass->superclass = nullptr;
  }
  destroyClass(cls);
  destroyClass(metaclass);
}
