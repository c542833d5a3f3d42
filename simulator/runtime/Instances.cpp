#include "simulator/runtime/Instances.h"

#include <cstdlib>
#include <new>

#include "simulator/runtime/Class.h"
#include "simulator/runtime/LiveObjects.h"
#include "simulator/runtime/ReferenceCounting.h"
#include "simulator/runtime/Send.h"
#include "simulator/runtime/WeakReferences.h"

namespace simulator::runtime {

ObjectKind kindOf(id object) {
  Class cls = object_getClass(object);
  if (cls->has(kMetaclass)) {
    return ObjectKind::kClass;
  }
  return cls->has(kBlockClass) ? ObjectKind::kBlock : ObjectKind::kInstance;
}

void leaveTrace(id object, ObjectTrace trace) {
  if (kindOf(object) == ObjectKind::kInstance) {
    headerOf(object).traces.fetch_or(trace, std::memory_order_release);
  }
}

void destructObject(id object) {
  const bool isInstance = kindOf(object) == ObjectKind::kInstance;
  // Blocks have nowhere to keep traces: look for them in both tables.
  const auto mayHave = [&](ObjectTrace trace) {
    return !isInstance || (headerOf(object).traces.load(std::memory_order_acquire) & trace) != 0;
  };
  if (mayHave(kHasAssociations)) {
    objc_removeAssociatedObjects(object);
  }
  if (mayHave(kHasWeakReferences)) {
    clearWeakReferences(object);
  }
}

}  // namespace simulator::runtime

using namespace simulator::runtime;

id class_createInstance(Class cls, std::size_t extraBytes) {
  if (cls == nullptr || cls->has(kMetaclass) || cls->has(kBlockClass)) {
    return nullptr;
  }
  const std::size_t bytes = sizeof(InstanceHeader) + class_getInstanceSize(cls) + extraBytes;
  void* memory = std::calloc(1, bytes);
  if (memory == nullptr) {
    return nullptr;
  }
  auto* header = new (memory) InstanceHeader{};
  header->references.store(kOneReference, std::memory_order_relaxed);
  id object = objectOf(header);
  object->isa = cls;
  enterLiveObject(*header);
  return object;
}

id object_dispose(id object) {
  if (object == nullptr || kindOf(object) != ObjectKind::kInstance) {
    return nullptr;
  }
  destructObject(object);
  InstanceHeader& header = headerOf(object);
  leaveLiveObject(header);
  header.references.store(kFreed, std::memory_order_relaxed);
  std::free(&header);
  return nullptr;
}

Class object_getClass(id object) {
  return object != nullptr ? std::atomic_ref(object->isa).load(std::memory_order_relaxed) : nullptr;
}

const char* object_getClassName(id object) {
  return class_getName(object_getClass(object));
}

bool object_isClass(id object) {
  return class_isMetaClass(object_getClass(object));
}

Class object_setClass(id object, Class cls) {
  return object != nullptr ? std::atomic_ref(object->isa).exchange(cls) : nullptr;
}

id objc_alloc(Class cls) {
  static const SEL alloc = sel_registerName("alloc");
  return send<id>(asObject(cls), alloc);
}

id objc_alloc_init(Class cls) {
  static const SEL init = sel_registerName("init");
  return send<id>(objc_alloc(cls), init);
}
