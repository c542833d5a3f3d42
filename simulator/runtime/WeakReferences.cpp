#include "simulator/runtime/WeakReferences.h"

#include <atomic>
#include <functional>
#include <mutex>
#include <unordered_map>
#include <utility>

#include "simulator/runtime/Fatal.h"
#include "simulator/runtime/Instances.h"
#include "simulator/runtime/LocationSet.h"
#include "simulator/runtime/ReferenceCounting.h"
#include "simulator/runtime/Shards.h"
#include "simulator/runtime/ShownAddresses.h"

namespace sim::runtime {
namespace {

// An object's end passes through its shard's lock before its memory goes. So whoever holds the
// lock and still finds the object in a registered location may touch it.
struct WeakTable {
  std::mutex lock;
  std::unordered_map<id, LocationSet> locations;  // by object referred to
};

WeakTable& tableOf(id object) {
  static auto* tables = new Shards<WeakTable>;
  return tables->of(object);
}

id read(id* location) {
  return std::atomic_ref(*location).load(std::memory_order_acquire);
}
void write(id* location, id object) {
  std::atomic_ref(*location).store(object, std::memory_order_release);
}

// Both are called with the lock of the object's table held.
void add(WeakTable& table, id object, id* location) {
  setTrace(object, ObjectTrace::weakReferences);
  table.locations[object].add(location);
}

void remove(WeakTable& table, id object, id* location) {
  const auto entry = table.locations.find(object);
  if (entry == table.locations.end()) return;
  entry->second.remove(location);
  if (entry->second.empty()) table.locations.erase(entry);
}

// The locks of both objects' tables, either of which may be nil; always taken in the same order.
class TwoTables {
 public:
  TwoTables(id one, id other) {
    WeakTable* first = one != nullptr ? &tableOf(one) : nullptr;
    WeakTable* second = other != nullptr ? &tableOf(other) : nullptr;
    if (std::less<>()(second, first)) std::swap(first, second);
    if (first != nullptr && first != second) first_ = std::unique_lock(first->lock);
    if (second != nullptr) second_ = std::unique_lock(second->lock);
  }

 private:
  std::unique_lock<std::mutex> first_;
  std::unique_lock<std::mutex> second_;
};

void requireAlive(id object) {
  if (isDeallocating(object)) {
    fatal(
        "cannot form a weak reference to instance 0x%zx of class %s: it is in dealloc or was "
        "released too often",
        shownAddress(object), object_getClassName(object));
  }
}

// Forgets the location without writing to it: it may be on its way out with all around it.
void forget(id* location) {
  for (;;) {
    id object = read(location);
    if (object == nullptr) return;
    WeakTable& table = tableOf(object);
    const std::lock_guard guard(table.lock);
    if (read(location) == object) {
      remove(table, object, location);
      return;
    }
  }
}

// Other threads see what the location referred to or what it refers to then, nothing between.
void exchange(id* location, id object) {
  for (;;) {
    id previous = read(location);
    const TwoTables locks(previous, object);
    if (read(location) != previous) continue;
    if (previous != nullptr) remove(tableOf(previous), previous, location);
    if (object != nullptr) {
      requireAlive(object);
      add(tableOf(object), object, location);
    }
    write(location, object);
    return;
  }
}

}  // namespace

void clearWeakReferences(id object) {
  WeakTable& table = tableOf(object);
  const std::lock_guard guard(table.lock);
  const auto entry = table.locations.find(object);
  if (entry == table.locations.end()) return;
  entry->second.forEach([](id* location) { write(location, nullptr); });
  table.locations.erase(entry);
}

}  // namespace sim::runtime

using namespace sim::runtime;

id objc_initWeak(id* location, id object) {
  write(location, nullptr);  // it was garbage
  exchange(location, object);
  return object;
}

id objc_storeWeak(id* location, id object) {
  exchange(location, object);
  return object;
}

id objc_loadWeakRetained(id* location) {
  for (;;) {
    id object = read(location);
    if (object == nullptr) return nullptr;
    const std::lock_guard guard(tableOf(object).lock);
    if (read(location) == object) return tryRetain(object) ? object : nullptr;
  }
}

id objc_loadWeak(id* location) {
  return objc_autorelease(objc_loadWeakRetained(location));
}

void objc_destroyWeak(id* location) {
  forget(location);
}

void objc_copyWeak(id* to, id* from) {
  id object = objc_loadWeakRetained(from);
  objc_initWeak(to, object);
  objc_release(object);
}

// Unlike a copy this works while the object is in dealloc: the registration only changes hands.
void objc_moveWeak(id* to, id* from) {
  write(to, nullptr);
  for (;;) {
    id object = read(from);
    if (object == nullptr) return;
    WeakTable& table = tableOf(object);
    const std::lock_guard guard(table.lock);
    if (read(from) == object) {
      remove(table, object, from);
      add(table, object, to);
      write(to, object);
      write(from, nullptr);
      return;
    }
  }
}
