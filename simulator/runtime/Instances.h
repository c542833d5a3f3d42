// The memory of instances: a header of the runtime's own in front of every object that
// class_createInstance makes. Class objects and blocks have none.
#pragma once

#include <atomic>
#include <cstdint>

#include "objc/runtime.h"

namespace sim::runtime {

// Which side tables know an object.
struct ObjectTrace {
  enum Value : std::uint32_t {
    associations = 1u << 0,
    weakReferences = 1u << 1,
    shownAddress = 1u << 2,
  };
};

struct alignas(16) InstanceHeader {
  // The list of live objects, guarded by its shard's lock (LiveObjects.cpp).
  InstanceHeader* previous;
  InstanceHeader* next;
  std::atomic<std::uint32_t> references;  // see ReferenceCounting.cpp
  std::atomic<std::uint32_t> traces;      // of ObjectTrace
};

inline InstanceHeader& headerOf(id object) {
  return *(reinterpret_cast<InstanceHeader*>(object) - 1);
}
inline id objectOf(InstanceHeader* header) {
  return reinterpret_cast<id>(header + 1);
}

// What stands behind a pointer to an object; decided by its class alone.
enum class ObjectKind { instance, classObject, block };
ObjectKind kindOf(id object);

// Remembers that a side table knows the object, so that its end has to look there.
void setTrace(id object, ObjectTrace::Value trace);

// What happens between dealloc and free: the members are destroyed, associations go, then weak
// references read nil.
void destructInstance(id object);

// The last two of these, and the end of its shown address, for the bits of ObjectTrace in `traces`.
void clearTraces(id object, std::uint32_t traces);

}  // namespace sim::runtime
