#include "simulator/runtime/Blocks.h"

#include <atomic>
#include <cstdlib>
#include <cstring>

#include "simulator/runtime/Fatal.h"
#include "simulator/runtime/Instances.h"
#include "simulator/runtime/LiveObjects.h"
#include "simulator/runtime/ShownAddresses.h"
#include "simulator/runtime/Signing.h"

namespace sim::runtime {
namespace {

BlockLayout* layoutOf(const void* block) {
  return static_cast<BlockLayout*>(const_cast<void*>(block));
}

std::atomic_ref<std::int32_t> flagsOf(const void* block) {
  return std::atomic_ref(layoutOf(block)->flags);
}

std::atomic_ref<std::uint32_t> tracesOf(const void* block) {
  return std::atomic_ref(layoutOf(block)->traces);
}

const BlockHelpers* helpersOf(const BlockLayout& block) {
  return (block.flags & BlockFlag::hasCopyDispose) != 0
             ? reinterpret_cast<const BlockHelpers*>(block.descriptor + 1)
             : nullptr;
}

// To be called: what lies in the descriptor may be signed over where it lies.
template <class Function>
Function* helper(Function* const& slot, const char* what) {
  return reinterpret_cast<Function*>(
      authenticatedFunction(reinterpret_cast<void*>(slot), what, &slot));
}

// A full count stays full: such a block is never freed.
bool retainHeapBlock(const void* block) {
  std::int32_t flags = flagsOf(block).load(std::memory_order_relaxed);
  do {
    if ((flags & BlockFlag::deallocating) != 0) return false;
    if ((flags & BlockFlag::referenceMask) == BlockFlag::referenceMask) return true;
  } while (!flagsOf(block).compare_exchange_weak(flags, flags + BlockFlag::oneCount));
  return true;
}

// True for the last reference, which leaves the block marked as deallocating.
bool releaseHeapBlock(const void* block) {
  std::int32_t flags = flagsOf(block).load(std::memory_order_relaxed);
  std::int32_t lowered = 0;
  do {
    const std::int32_t count = flags & BlockFlag::referenceMask;
    if (count == BlockFlag::referenceMask || (flags & BlockFlag::deallocating) != 0) return false;
    if (count == 0) fatal("block 0x%zx was released too often", shownAddress(block));
    lowered = flags - BlockFlag::oneCount;
    if (count == BlockFlag::oneCount) lowered |= BlockFlag::deallocating;
  } while (!flagsOf(block).compare_exchange_weak(flags, lowered));
  return (lowered & BlockFlag::deallocating) != 0;
}

void* copyToHeap(const BlockLayout& source) {
  void* memory = std::malloc(source.descriptor->size);
  if (memory == nullptr) return nullptr;
  std::memcpy(memory, &source, source.descriptor->size);
  auto* copy = static_cast<BlockLayout*>(memory);
  copy->flags &= ~(BlockFlag::referenceMask | BlockFlag::deallocating);
  copy->flags |= BlockFlag::needsFree | BlockFlag::oneCount;
  // Nobody asks for the class of a block on the stack, except for whoever sends it a message.
  if (signs()) authenticatedIsa(source.isa, &source.isa);
  void* invoke = reinterpret_cast<void*>(source.invoke);
  invoke = authenticatedFunction(invoke, "a block's function", &source.invoke);
  copy->invoke = reinterpret_cast<void (*)()>(signedFunction(invoke, &copy->invoke));
  if (const BlockHelpers* helpers = helpersOf(source))
    helper(helpers->copy, "a block's copy helper")(copy, &source);
  storeIsa(copy->isa, static_cast<void*>(_NSConcreteMallocBlock));
  copy->traces = countedBlock;
  countLiveBlocks(1);
  return copy;
}

}  // namespace

void setTraceInBlock(id block, ObjectTrace::Value trace) {
  if ((flagsOf(block).load() & BlockFlag::needsFree) != 0)
    tracesOf(block).fetch_or(trace, std::memory_order_release);
}

bool returnsLargeStructure([[maybe_unused]] id block) {
#if defined(__x86_64__)
  constexpr std::int32_t marks = BlockFlag::useStret | BlockFlag::hasSignature;
  return (flagsOf(block).load() & marks) == marks;
#else
  return false;
#endif
}

bool tryRetainBlock(id block) {
  return (flagsOf(block).load() & BlockFlag::needsFree) == 0 || retainHeapBlock(block);
}

bool isBlockDeallocating(id block) {
  return (flagsOf(block).load() & BlockFlag::deallocating) != 0;
}

std::size_t blockRetainCount(id block) {
  const std::int32_t flags = flagsOf(block).load();
  return (flags & BlockFlag::needsFree) != 0
             ? static_cast<std::size_t>(flags & BlockFlag::referenceMask) / BlockFlag::oneCount
             : 1;
}

}  // namespace sim::runtime

using namespace sim::runtime;

void* _Block_copy(const void* block) {
  if (block == nullptr) return nullptr;
  const std::int32_t flags = flagsOf(block).load();
  if ((flags & BlockFlag::isGlobal) != 0) return layoutOf(block);
  if ((flags & BlockFlag::needsFree) != 0) {
    retainHeapBlock(block);
    return layoutOf(block);
  }
  if (layoutOf(block)->invoke == nullptr)
    fatal("_Block_copy: block 0x%zx has no function", shownAddress(block));
  return copyToHeap(*layoutOf(block));
}

void _Block_release(const void* block) {
  if (block == nullptr || (flagsOf(block).load() & BlockFlag::isGlobal) != 0 ||
      (flagsOf(block).load() & BlockFlag::needsFree) == 0 || !releaseHeapBlock(block))
    return;
  if (const BlockHelpers* helpers = helpersOf(*layoutOf(block)))
    helper(helpers->dispose, "a block's dispose helper")(block);
  const std::uint32_t traces = tracesOf(block).load(std::memory_order_acquire);
  clearTraces(reinterpret_cast<id>(layoutOf(block)), traces);
  if ((traces & countedBlock) != 0) countLiveBlocks(-1);
  endShownAddress(block);
  std::free(layoutOf(block));
}
