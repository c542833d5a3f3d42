// Blocks: plain malloc memory whose reference count is in their flags.
#pragma once

#include <cstddef>
#include <cstdint>

#include "objc/runtime.h"

namespace simulator::runtime {

struct BlockDescriptor {
  std::uintptr_t reserved;
  std::uintptr_t size;  // bytes of the whole block
};

// Follows the descriptor of a block with kBlockHasCopyDispose.
struct BlockHelpers {
  void (*copy)(void* to, const void* from);
  void (*dispose)(const void* block);
};

struct BlockLayout {
  void* isa;
  std::int32_t flags;
  std::int32_t isCounted;  // the ABI's reserved word: 1 if _Block_copy made this block
  void (*invoke)();
  BlockDescriptor* descriptor;
};

enum BlockFlag : std::int32_t {
  kBlockDeallocating = 1 << 0,
  kBlockOneReference = 1 << 1,
  kBlockReferenceMask = 0xfffe,
  kBlockNeedsFree = 1 << 24,  // on the heap
  kBlockHasCopyDispose = 1 << 25,
  kBlockIsGlobal = 1 << 28,
};

bool tryRetainBlock(id block);
bool isBlockDeallocating(id block);
std::size_t blockRetainCount(id block);

// Makes NSBlock and the three classes behind _NSConcrete...Block.
void registerBlockClasses();

}  // namespace simulator::runtime
