#include "simulator/runtime/Instances.h"

#include <cstdlib>
#include <new>

#include "simulator/runtime/Blocks.h"
#include "simulator/runtime/Class.h"
#include "simulator/runtime/ClassRegistry.h"
#include "simulator/runtime/LiveObjects.h"
#include "simulator/runtime/Methods.h"
#include "simulator/runtime/ReferenceCounting.h"
#include "simulator/runtime/Send.h"
#include "simulator/runtime/ShownAddresses.h"
#include "simulator/runtime/Signing.h"
#include "simulator/runtime/WeakReferences.h"

namespace sim::runtime {

ObjectKind kindOf(id object) {
  Class cls = object_getClass(object);
  if (cls->has(ClassFlag::metaclass)) return ObjectKind::classObject;
  return cls->has(ClassFlag::blockClass) ? ObjectKind::block : ObjectKind::instance;
}

namespace {

IMP ownImplementation(Class cls, SEL selector) {
  const std::lock_guard guard(runtimeLock());
  const Method method = findOwnMethod(cls, selector);
  return method != nullptr ? method->implementation.load() : nullptr;
}

// Each class destroys its own members, subclasses first. Not a message: an inherited one would run
// twice.
void destructMembers(id object) {
  for (Class cls = object_getClass(object); cls != nullptr && cls->has(ClassFlag::cxxDestruct);
       cls = cls->superclass)
    if (const IMP destruct = ownImplementation(cls, cxxDestruct()))
      reinterpret_cast<void (*)(id, SEL)>(destruct)(object, cxxDestruct());
}

}  // namespace

void setTrace(id object, ObjectTrace::Value trace) {
  switch (kindOf(object)) {
    case ObjectKind::instance:
      headerOf(object).traces.fetch_or(trace, std::memory_order_release);
      break;
    case ObjectKind::block:
      setTraceInBlock(object, trace);
      break;
    case ObjectKind::classObject:
      break;  // has no end
  }
}

void destructInstance(id object) {
  destructMembers(object);
  // Read only now: destructors may have left some.
  clearTraces(object, headerOf(object).traces.load(std::memory_order_acquire));
}

void clearTraces(id object, std::uint32_t traces) {
  if ((traces & ObjectTrace::associations) != 0) objc_removeAssociatedObjects(object);
  if ((traces & ObjectTrace::weakReferences) != 0) clearWeakReferences(object);
  if ((traces & ObjectTrace::shownAddress) != 0) endShownAddress(object);
}

}  // namespace sim::runtime

using namespace sim::runtime;

id class_createInstance(Class cls, std::size_t extraBytes) {
  if (cls == nullptr || cls->has(ClassFlag::metaclass) || cls->has(ClassFlag::blockClass))
    return nullptr;
  const std::size_t bytes = sizeof(InstanceHeader) + class_getInstanceSize(cls) + extraBytes;
  void* memory = std::calloc(1, bytes);
  if (memory == nullptr) return nullptr;
  auto* header = new (memory) InstanceHeader{};
  header->references.store(oneReference, std::memory_order_relaxed);
  id object = objectOf(header);
  storeIsa(object->isa, cls);
  addLiveObject(*header);
  return object;
}

id object_dispose(id object) {
  if (object == nullptr || kindOf(object) != ObjectKind::instance) return nullptr;
  destructInstance(object);
  InstanceHeader& header = headerOf(object);
  removeLiveObject(header);
  header.references.store(freedMark, std::memory_order_relaxed);
  std::free(&header);
  return nullptr;
}

Class object_getClass(id object) {
  return object != nullptr ? loadIsa(object->isa) : nullptr;
}

const char* object_getClassName(id object) {
  return class_getName(object_getClass(object));
}

bool object_isClass(id object) {
  return class_isMetaClass(object_getClass(object));
}

Class object_setClass(id object, Class cls) {
  return object != nullptr ? exchangeIsa(object->isa, cls) : nullptr;
}

id objc_alloc(Class cls) {
  static const SEL alloc = sel_registerName("alloc");
  return send<id>(asObject(cls), alloc);
}

id objc_alloc_init(Class cls) {
  static const SEL init = sel_registerName("init");
  return send<id>(objc_alloc(cls), init);
}
