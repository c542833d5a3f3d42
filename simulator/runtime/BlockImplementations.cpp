// Blocks as method implementations.
#include "simulator/runtime/Blocks.h"
#include "simulator/runtime/Trampolines.h"

using namespace sim::runtime;

// nil for nil.
IMP imp_implementationWithBlock(id block) {
  if (block == nullptr) return nullptr;
  const TrampolineKind kind =
      returnsLargeStructure(block) ? TrampolineKind::stret : TrampolineKind::plain;
  return makeTrampoline(kind, static_cast<id>(_Block_copy(block)));
}

id imp_getBlock(IMP implementation) {
  return blockOfTrampoline(implementation);
}

bool imp_removeBlock(IMP implementation) {
  id block = destroyTrampoline(implementation);
  _Block_release(block);
  return block != nullptr;
}
