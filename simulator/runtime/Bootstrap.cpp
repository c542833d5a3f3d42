#include <atomic>
#include <mutex>

#include "simulator/runtime/Blocks.h"
#include "simulator/runtime/ClassRegistry.h"
#include "simulator/runtime/NSObject.h"
#include "simulator/runtime/Protocols.h"

namespace sim::runtime {
namespace {

std::atomic<bool> finished;

// Blocks are reached through symbols, without a call that could bootstrap: so it happens before
// any static initialiser without a priority, at the latest.
[[gnu::constructor(101)]] void bootstrapAtLoad() {
  ensureBootstrapped();
}

}  // namespace

void ensureBootstrapped() {
  if (finished.load(std::memory_order_acquire)) return;
  // The registration calls public functions, which come here again.
  static auto* lock = new std::recursive_mutex;
  static bool begun = false;
  const std::lock_guard guard(*lock);
  if (begun) return;
  begun = true;
  registerRootClass();
  registerProtocolClass();
  registerBlockClasses();
  finished.store(true, std::memory_order_release);
}

}  // namespace sim::runtime
