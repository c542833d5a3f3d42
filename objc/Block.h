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

#include <cstddef>
#include <cstdint>
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
  blockHasCopyDispose = 1 << 25,
  blockUseStret =
      1 << 29,  // callers pass the place for the result; meaningful with a signature only
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

struct NoDescriptor {};

template <class Signature, class Function>
struct BlockLiteral;

// The literal is made on the stack, as the platform's compiler makes it, and the runtime's copy of
// it on the heap is the block. So only what every compiler writes stands here, and not how the
// runtime marks and counts blocks on the heap. The literal is copied exactly once: the copy helper
// moves the captures, which may be move-only.
//
// With helpers, the descriptor is part of the literal: arm64e signs them over where they are
// stored, which the compiler cannot do for a constant, and one that all threads share would have to
// be filled under a guard. The copy helper signs them again in their new place.
template <class R, class... Args, class Function>
struct BlockLiteral<R(Args...), Function> {
  static constexpr bool needsHelpers = !std::is_trivially_copyable_v<Function>;
  using Descriptor = std::conditional_t<needsHelpers, BlockDescriptor, NoDescriptor>;

  BlockHeader header;
  Function function;
  [[no_unique_address]] Descriptor descriptor;

  explicit BlockLiteral(Function&& captures) : function(std::move(captures)) {
    storeBlockClass(&header.isa, _NSConcreteStackBlock);
    header.flags = blockHasSignature | (needsHelpers ? blockHasCopyDispose : 0) |
                   (returnedInMemory<R> ? blockUseStret : 0);
    header.reserved = 0;
    storeBlockFunction(&header.invoke, &invoke);
    describe();
  }

  // Callers know nothing of the captures: these have the prototypes that they call.
  static Wire<R> invoke(BlockHeader* literal, Wire<Args>... args) {
    auto* self = reinterpret_cast<BlockLiteral*>(literal);
    if constexpr (std::is_void_v<R>)
      self->function(fromWire<Args>(args)...);
    else
      return toWire<R>(self->function(fromWire<Args>(args)...));
  }

  // The runtime has copied the bytes, and signed again what it knows of.
  static void copy(void* to, const void* from) {
    auto* copied = static_cast<BlockLiteral*>(to);
    auto* literal = static_cast<BlockLiteral*>(const_cast<void*>(from));
    new (&copied->function) Function(std::move(literal->function));
    copied->describe();
  }
  static void dispose(const void* literal) {
    static_cast<BlockLiteral*>(const_cast<void*>(literal))->function.~Function();
  }

  void describe() {
    constexpr auto& signature = pooled<BlockSignature<R(Args...)>::value>;
    if constexpr (needsHelpers) {
      descriptor = {0, sizeof(BlockLiteral), nullptr, nullptr, signature.c_str()};
      storeBlockFunction(&descriptor.copy, &copy);
      storeBlockFunction(&descriptor.dispose, &dispose);
      header.descriptor = &descriptor;
    } else {
      static PlainBlockDescriptor plain{0, sizeof(BlockLiteral), signature.c_str()};
      header.descriptor = &plain;
    }
  }
};

// A block that runs `function` and owns its captures, which are moved in. Whoever keeps it longer
// than the result copies it, as with any block.
template <class Signature, class Function>
Strong<Block<Signature>> block(Function&& function) {
  static_assert(!std::is_lvalue_reference_v<Function>, "move the lambda into its block");
  static_assert(alignof(Function) <= alignof(std::max_align_t), "captures are over-aligned");
  BlockLiteral<Signature, Function> literal(std::forward<Function>(function));
  return adopt(Block<Signature>(static_cast<id>(_Block_copy(&literal))));
}

// For keeping a block that was handed in: it may still live on its maker's stack. nil gives an
// empty owner.
template <class Signature>
[[nodiscard]] Strong<Block<Signature>> copy(Block<Signature> block) {
  return adopt(Block<Signature>(static_cast<id>(_Block_copy(block.get()))));
}

}  // namespace objc
