// What the runtime's opaque types are made of. Everything in ClassData is guarded by
// runtimeLock() (ClassRegistry.h) unless its comment says otherwise.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <thread>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "objc/runtime.h"
#include "simulator/runtime/AssemblyOffsets.h"
#include "simulator/runtime/Signing.h"

namespace sim::runtime {
struct ClassData;
struct MethodCache;

struct ClassFlag {
  enum Value : std::uint32_t {
    metaclass = 1u << 0,
    registered = 1u << 1,
    initialized = 1u << 2,       // +initialize has returned
    inlineReferences = 1u << 3,  // inherits NSObject's retain, release and autorelease
    blockClass = 1u << 4,        // instances are blocks: no InstanceHeader in front of them
    cxxDestruct = 1u << 5,       // has or inherits a .cxx_destruct
  };
};
}  // namespace sim::runtime

// Small, because block classes must fit into the 32 pointers of _NSConcreteStackBlock and its kin.
struct objc_class {
  Class isa;  // its metaclass, possibly signed; like that of every object
  Class superclass;
  std::atomic<sim::runtime::MethodCache*> cache;  // never null; probed by the assembly
  std::atomic<std::uint32_t> flags;
  sim::runtime::ClassData* data;  // owned

  Class metaclass() { return sim::runtime::loadIsa(isa); }
  bool has(sim::runtime::ClassFlag::Value flag) const {
    return (flags.load(std::memory_order_acquire) & flag) != 0;
  }
};

static_assert(offsetof(objc_class, superclass) == CLASS_SUPERCLASS_OFFSET);
static_assert(offsetof(objc_class, cache) == CLASS_CACHE_OFFSET);
static_assert(sizeof(objc_class) <= sizeof(_NSConcreteStackBlock));

struct objc_method {
  SEL name;
  std::string types;
  std::atomic<IMP> implementation;
  Class owner;
};

struct objc_ivar {
  std::string name;
  std::string types;
  std::ptrdiff_t offset;
};

struct objc_property {
  std::string name;
  std::string attributes;
};

namespace sim::runtime {

struct ClassData {
  std::string name;
  Class instanceClass = nullptr;  // of a metaclass: its class; of a class: itself
  std::vector<Class> subclasses;

  std::vector<std::unique_ptr<objc_method>> methods;  // in the order they were added
  std::unordered_map<SEL, objc_method*> methodsBySelector;
  std::unordered_set<SEL> unanswered;  // what the resolvers were asked for and did not bring
  std::vector<std::unique_ptr<objc_ivar>> ivars;
  std::vector<std::unique_ptr<objc_property>> properties;
  std::vector<Protocol*> protocols;  // adopted by the class itself, newest first
  std::size_t instanceSize = 0;      // bytes, not rounded: a subclass's ivars may fill the rest

  // Other threads may still be probing a cache that was outgrown, so it lives as long as its class.
  std::vector<MethodCache*> outgrownCaches;

  // Guarded by the lock of Initialization.cpp.
  bool initializing = false;
  std::thread::id initializingThread;
  std::vector<Class> initializedEarly;  // subclasses whose end of +initialize waits for this one's
};

inline id asObject(Class cls) {
  return reinterpret_cast<id>(cls);
}
inline Class asClass(id object) {
  return reinterpret_cast<Class>(object);
}

}  // namespace sim::runtime
