#include "simulator/runtime/ReferenceCounting.h"

#include "simulator/runtime/AutoreleasePool.h"
#include "simulator/runtime/Blocks.h"
#include "simulator/runtime/Class.h"
#include "simulator/runtime/Fatal.h"
#include "simulator/runtime/Instances.h"
#include "simulator/runtime/Send.h"
#include "simulator/runtime/ShownAddresses.h"

namespace sim::runtime {
namespace {

bool usesInlineReferences(id object) {
  return object_getClass(object)->has(ClassFlag::inlineReferences);
}

// An object in dealloc keeps deallocatingBit through retains and releases: neither revives it nor
// sends dealloc a second time.
bool tryRetainInstance(id object) {
  std::atomic<std::uint32_t>& references = headerOf(object).references;
  std::uint32_t current = references.load(std::memory_order_relaxed);
  do {
    if ((current & deallocatingBit) != 0) return false;
  } while (!references.compare_exchange_weak(current, current + oneReference,
                                             std::memory_order_relaxed));
  return true;
}

}  // namespace

id retainInstance(id object) {
  tryRetainInstance(object);
  return object;
}

void releaseInstance(id object) {
  std::atomic<std::uint32_t>& references = headerOf(object).references;
  std::uint32_t current = references.load(std::memory_order_relaxed);
  std::uint32_t lowered = 0;
  do {
    if (current == freedMark)
      fatal("object 0x%zx was released after it had been freed", lastShownAddress(object));
    if ((current & deallocatingBit) != 0) return;
    lowered = current == oneReference ? deallocatingBit : current - oneReference;
  } while (!references.compare_exchange_weak(current, lowered, std::memory_order_acq_rel,
                                             std::memory_order_relaxed));
  if (lowered == deallocatingBit) {
    static const SEL dealloc = sel_registerName("dealloc");
    send<void>(object, dealloc);
  }
}

std::size_t instanceRetainCount(id object) {
  return headerOf(object).references.load(std::memory_order_relaxed) / oneReference;
}

bool tryRetain(id object) {
  switch (kindOf(object)) {
    case ObjectKind::classObject:
      return true;
    case ObjectKind::block:
      return tryRetainBlock(object);
    case ObjectKind::instance:
      break;
  }
  return tryRetainInstance(object);
}

bool isDeallocating(id object) {
  switch (kindOf(object)) {
    case ObjectKind::classObject:
      return false;
    case ObjectKind::block:
      return isBlockDeallocating(object);
    case ObjectKind::instance:
      break;
  }
  return (headerOf(object).references.load(std::memory_order_acquire) & deallocatingBit) != 0;
}

}  // namespace sim::runtime

using namespace sim::runtime;

id objc_retain(id object) {
  if (object == nullptr) return nullptr;
  if (usesInlineReferences(object)) return retainInstance(object);
  static const SEL retain = sel_registerName("retain");
  return send<id>(object, retain);
}

void objc_release(id object) {
  if (object == nullptr) return;
  if (usesInlineReferences(object)) {
    releaseInstance(object);
    return;
  }
  static const SEL release = sel_registerName("release");
  send<void>(object, release);
}

id objc_autorelease(id object) {
  if (object == nullptr) return nullptr;
  if (usesInlineReferences(object)) return addToAutoreleasePool(object);
  static const SEL autorelease = sel_registerName("autorelease");
  return send<id>(object, autorelease);
}

id objc_retainAutorelease(id object) {
  return objc_autorelease(objc_retain(object));
}
