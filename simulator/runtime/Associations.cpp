#include <algorithm>
#include <mutex>
#include <unordered_map>
#include <utility>
#include <vector>

#include "simulator/runtime/Fatal.h"
#include "simulator/runtime/Instances.h"
#include "simulator/runtime/Send.h"
#include "simulator/runtime/Shards.h"

using namespace sim::runtime;

namespace {

// The bits of a policy, in the platform's terms.
constexpr objc_AssociationPolicy setterMask = 0xff;
constexpr objc_AssociationPolicy getterRetains = 0x100;  // and autoreleases: 01401, 01403

struct Association {
  const void* key;
  id value;
  objc_AssociationPolicy policy;
};
using Associations = std::vector<Association>;  // oldest first: objects seldom have many

struct AssociationTable {
  // Recursive, because a getter retains under it and retain may be anybody's method.
  std::recursive_mutex lock;
  std::unordered_map<id, Associations> byObject;
};

AssociationTable& tableOf(id object) {
  static auto* tables = new Shards<AssociationTable>;
  return tables->of(object);
}

id acquire(id value, objc_AssociationPolicy policy) {
  switch (policy & setterMask) {
    case OBJC_ASSOCIATION_RETAIN_NONATOMIC:
      return objc_retain(value);
    case OBJC_ASSOCIATION_COPY_NONATOMIC: {
      static const SEL copy = sel_registerName("copy");
      return send<id>(value, copy);
    }
    default:
      return value;
  }
}

void releaseOwned(const Association& association) {
  if ((association.policy & setterMask) != OBJC_ASSOCIATION_ASSIGN) objc_release(association.value);
}

auto findKey(Associations& associations, const void* key) {
  return std::find_if(associations.begin(), associations.end(),
                      [&](const Association& one) { return one.key == key; });
}

// Puts the association in and gives the one it replaces (with a nil value if there was none).
Association exchange(id object, const Association& added) {
  AssociationTable& table = tableOf(object);
  const std::lock_guard guard(table.lock);
  setTrace(object, ObjectTrace::associations);
  Associations& associations = table.byObject[object];
  const auto found = findKey(associations, added.key);
  if (found != associations.end()) return std::exchange(*found, added);
  associations.push_back(added);
  return {added.key, nullptr, OBJC_ASSOCIATION_ASSIGN};
}

Association take(id object, const void* key) {
  AssociationTable& table = tableOf(object);
  const std::lock_guard guard(table.lock);
  const auto entry = table.byObject.find(object);
  Association taken{key, nullptr, OBJC_ASSOCIATION_ASSIGN};
  if (entry == table.byObject.end()) return taken;
  if (const auto found = findKey(entry->second, key); found != entry->second.end()) {
    taken = *found;
    entry->second.erase(found);
  }
  if (entry->second.empty()) table.byObject.erase(entry);
  return taken;
}

}  // namespace

void objc_setAssociatedObject(id object, const void* key, id value, objc_AssociationPolicy policy) {
  if (object == nullptr) {
    // Removing what nil cannot have is harmless, on the platform too.
    if (value == nullptr) return;
    fatal("objc_setAssociatedObject: the object is nil, its value would be an instance of %s",
          object_getClassName(value));
  }
  // Other people's code (retain, copy, dealloc) runs outside the lock.
  releaseOwned(value != nullptr ? exchange(object, {key, acquire(value, policy), policy})
                                : take(object, key));
}

id objc_getAssociatedObject(id object, const void* key) {
  if (object == nullptr) return nullptr;
  Association found{key, nullptr, OBJC_ASSOCIATION_ASSIGN};
  {
    AssociationTable& table = tableOf(object);
    const std::lock_guard guard(table.lock);
    if (const auto entry = table.byObject.find(object); entry != table.byObject.end()) {
      if (const auto one = findKey(entry->second, key); one != entry->second.end()) found = *one;
    }
    // Under the lock: outside it another thread could replace and free the value first.
    if ((found.policy & getterRetains) != 0) objc_retain(found.value);
  }
  return (found.policy & getterRetains) != 0 ? objc_autorelease(found.value) : found.value;
}

void objc_removeAssociatedObjects(id object) {
  if (object == nullptr) return;
  Associations removed;
  {
    AssociationTable& table = tableOf(object);
    const std::lock_guard guard(table.lock);
    if (const auto entry = table.byObject.find(object); entry != table.byObject.end()) {
      removed = std::move(entry->second);
      table.byObject.erase(entry);
    }
  }
  std::for_each(removed.begin(), removed.end(), releaseOwned);
}
