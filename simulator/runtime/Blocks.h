// Blocks: plain malloc memory whose reference count is in their flags.
#pragma once

#include <cstddef>
#include <cstdint>

#include "objc/runtime.h"
#include "simulator/runtime/Instances.h"

namespace sim::runtime {

struct BlockDescriptor {
  std::uintptr_t reserved;
  std::uintptr_t size;  // bytes of the whole block
};

// Follows the descriptor of a block with BlockFlag::hasCopyDispose.
struct BlockHelpers {
  void (*copy)(void* to, const void* from);
  void (*dispose)(const void* block);
};

struct BlockLayout {
  void* isa;
  std::int32_t flags;
  std::uint32_t traces;  // the ABI's reserved word: ObjectTrace and countedBlock
  void (*invoke)();
  BlockDescriptor* descriptor;
};

struct BlockFlag {
  enum Value : std::int32_t {
    deallocating = 1 << 0,
    oneCount = 1 << 1,
    referenceMask = 0xfffe,
    needsFree = 1 << 24,  // on the heap
    hasCopyDispose = 1 << 25,
    isGlobal = 1 << 28,
    useStret = 1 << 29,  // meaningful with a signature only
    hasSignature = 1 << 30,
  };
};

// Beside the bits of ObjectTrace: _Block_copy made the block, and so the live ones count it. Blocks
// that their makers put on the heap themselves have zero there.
inline constexpr std::uint32_t countedBlock = 1u << 31;

// Nothing for blocks that are not on the heap: they have no end, and may be read-only.
void setTraceInBlock(id block, ObjectTrace::Value trace);

// Whether callers of the block pass the place for its result: on x86-64, as its maker has marked
// it.
bool returnsLargeStructure(id block);

bool tryRetainBlock(id block);
bool isBlockDeallocating(id block);
std::size_t blockRetainCount(id block);

// Makes NSBlock and the three classes behind _NSConcrete...Block.
void registerBlockClasses();

}  // namespace sim::runtime
