// Blocks from lambdas, built by hand at run time.
//
//   dispatch_async(queue, block<void()>([view = retain(view)] { view->setHidden(true); }));
//
// A block outlives the call that made it, so it captures owners: Strong and Weak
// (objc/Ownership.h), and Retained (objc/Retained.h) for the object whose member makes it. Never
// `this`, a view or a reference.
//
// The compiler we cross-build with stores a block's code pointers unsigned, so the layout of the
// platform's block ABI is written out here and filled in by ordinary stores.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <new>
#include <type_traits>
#include <utility>

#include "objc/Encoding.h"
#include "objc/Message.h"
#include "objc/Ownership.h"
#include "objc/PointerAuthentication.h"

namespace objc {

struct BlockDescriptor {
  std::uintptr_t reserved;
  std::uintptr_t size;  // bytes of the whole literal
  void* copy;           // signed over its own address on arm64e, like dispose
  void* dispose;
  const char* signature;
};

// Without helpers the signature follows the size at once.
struct PlainBlockDescriptor {
  std::uintptr_t reserved;
  std::uintptr_t size;
  const char* signature;
};

struct BlockHeader {
  void* isa;
  std::int32_t flags;
  std::int32_t reserved;
  void* invoke;
  void* descriptor;
};

enum BlockFlags : std::int32_t {
  blockReferenceCountOfOne = 1 << 1,
  blockNeedsFree = 1 << 24,
  blockHasCopyDispose = 1 << 25,
  blockHasSignature = 1 << 30,
};

template <class Signature>
class Block;

// A view of a block: one pointer, may be nil, never owns.
template <class R, class... Args>
class Block<R(Args...)> : public Object, public BlockTag {
 public:
  using Object::Object;

  // A nil block gives a value-initialised result.
  R operator()(Args... args) const {
    if (pointer == nullptr) return R();
    auto* header = reinterpret_cast<BlockHeader*>(pointer);
    using Invoke = Wire<R> (*)(BlockHeader*, Wire<Args>...);
    auto invoke = loadBlockFunction<Invoke>(&header->invoke);
    if constexpr (std::is_void_v<R>)
      invoke(header, toWire<Args>(args)...);
    else
      return fromWire<R>(invoke(header, toWire<Args>(args)...));
  }
};

template <class Signature>
struct BlockSignature;
template <class R, class... Args>
struct BlockSignature<R(Args...)> {
  static constexpr auto value = ((encode<R>() + FixedString("@?")) + ... + encode<Args>());
};

template <class Signature, class Function>
struct HeapBlock;

// The literal lives on the heap from the start, with its descriptor behind it: it is moved
// nowhere, so captures may be move-only and _Block_copy only counts.
template <class R, class... Args, class Function>
struct HeapBlock<R(Args...), Function> {
  static constexpr bool disposes = !std::is_trivially_destructible_v<Function>;
  using Descriptor = std::conditional_t<disposes, BlockDescriptor, PlainBlockDescriptor>;

  BlockHeader header;
  Function function;
  Descriptor descriptor;

  // Callers know nothing of the captures: these have the prototypes that they call.
  static Wire<R> invoke(BlockHeader* literal, Wire<Args>... args) {
    auto* self = reinterpret_cast<HeapBlock*>(literal);
    if constexpr (std::is_void_v<R>)
      self->function(fromWire<Args>(args)...);
    else
      return toWire<R>(self->function(fromWire<Args>(args)...));
  }

  static void dispose(const void* literal) {
    static_cast<HeapBlock*>(const_cast<void*>(literal))->function.~Function();
  }
  // Never run: the runtime copies only blocks that live on a stack.
  static void copy(void*, const void*) {}

  static HeapBlock* make(Function&& function) {
    auto* made = static_cast<HeapBlock*>(std::calloc(1, sizeof(HeapBlock)));
    if (made == nullptr) return nullptr;
    new (&made->function) Function(std::move(function));
    storeBlockClass(&made->header.isa, _NSConcreteMallocBlock);
    made->header.flags = blockNeedsFree | blockReferenceCountOfOne | blockHasSignature;
    storeBlockFunction(&made->header.invoke, &HeapBlock::invoke);
    made->header.descriptor = &made->descriptor;
    made->descriptor.size = sizeof(HeapBlock);
    made->descriptor.signature = BlockSignature<R(Args...)>::value.c_str();
    if constexpr (disposes) {
      made->header.flags |= blockHasCopyDispose;
      storeBlockFunction(&made->descriptor.copy, &HeapBlock::copy);
      storeBlockFunction(&made->descriptor.dispose, &HeapBlock::dispose);
    }
    return made;
  }
};

// A block that runs `function` and owns its captures, which are moved in. Whoever keeps it longer
// than the result copies it, as with any block.
template <class Signature, class Function>
Strong<Block<Signature>> block(Function&& function) {
  static_assert(!std::is_lvalue_reference_v<Function>, "move the lambda into its block");
  static_assert(alignof(Function) <= alignof(std::max_align_t), "captures are over-aligned");
  auto* made = HeapBlock<Signature, Function>::make(std::move(function));
  return adopt(Block<Signature>(reinterpret_cast<id>(made)));
}

// For keeping a block that was handed in: it may still live on its maker's stack. nil gives an
// empty owner.
template <class Signature>
[[nodiscard]] Strong<Block<Signature>> copy(Block<Signature> block) {
  return adopt(Block<Signature>(static_cast<id>(_Block_copy(block.get()))));
}

}  // namespace objc
