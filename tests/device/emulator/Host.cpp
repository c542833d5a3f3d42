#include "Host.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <map>
#include <vector>

#include "Signing.h"
#include "Slice.h"

namespace host {

std::string journal;

namespace {

struct BlockDescriptor {
  std::uintptr_t reserved, size;
  void *copy, *dispose;  // only with the flag hasHelpers
};

struct Block {
  void* isa;
  std::int32_t flags, reserved;
  void* invoke;
  BlockDescriptor* descriptor;
};

constexpr std::int32_t oneReference = 2, referenceCount = 0xFFFE, needsFree = 1 << 24,
                       hasHelpers = 1 << 25;

const Signing* signing;
void *mallocBlock[32], *stackBlock[32], *mainQueue[32], *theClass[32], *theObject[32];
std::map<std::string, void*> methods;
std::vector<Block*> queue;

void release(Block* block) {
  block->flags -= oneReference;
  if ((block->flags & referenceCount) != 0) return;
  if (block->flags & hasHelpers) {
    void* dispose = signing->checkStoredFunction(&block->descriptor->dispose, "a dispose helper");
    reinterpret_cast<void (*)(Block*)>(dispose)(block);
  }
  std::free(block);
}

// The bytes first, then what is signed over its place, then the captures, as on a phone.
Block* copyFromStack(Block* block) {
  void* invoke = signing->checkStoredFunction(&block->invoke, "a block's function");
  auto* made = static_cast<Block*>(std::malloc(block->descriptor->size));
  std::memcpy(static_cast<void*>(made), block, block->descriptor->size);
  signing->storeFunction(&made->invoke, invoke);
  made->flags = (block->flags & ~referenceCount) | needsFree | oneReference;
  if (block->flags & hasHelpers) {
    void* copy = signing->checkStoredFunction(&block->descriptor->copy, "a copy helper");
    reinterpret_cast<void (*)(Block*, Block*)>(copy)(made, block);
  }
  signing->storeIsa(&made->isa, mallocBlock);
  return made;
}

Block* copyBlock(Block* block) {
  void* isa = signing->checkIsa(&block->isa, "a block's isa");
  if (isa == stackBlock) return copyFromStack(block);
  if (isa != mallocBlock) fail("a block has an unknown class");
  block->flags += oneReference;
  return block;
}

void original(void*, const char*) {
  journal += " original";
}

// What the slices bind to. Results of type bool are long here: the caller relies on the whole
// register, which Linux compilers leave undefined.
void* getClass(const char*) {
  return theClass;
}
void* allocateClassPair(void*, const char*, std::size_t) {
  return theClass;
}
void ignore(void*) {}
void clear(void* place, std::size_t bytes) {
  std::memset(place, 0, bytes);
}
const char* registerName(const char* name) {
  return name;
}
long addMethod(void*, const char* selector, void* implementation, const char*) {
  methods[selector] = implementation;
  return 1;
}
long addNothing() {
  return 1;
}
void* instanceVariable() {
  return theClass;
}
std::ptrdiff_t ivarOffset() {
  return 16;
}
void hook(void*, const char* selector, void* replacement, void** previous) {
  methods[selector] = replacement;
  *previous = signing->signFunction(reinterpret_cast<void*>(&original));
}
void* retain(void* object) {
  if (object == theObject) journal += " retain";
  return object;
}
void releaseAny(void* object) {
  if (object == nullptr) return;
  if (object == theObject)
    journal += " release";
  else
    release(static_cast<Block*>(object));
}
void sendMessage(void*, const char* selector) {
  journal += std::string(" ") + selector;
}
void dispatchAsync(void*, Block* block) {
  queue.push_back(copyBlock(block));
}

template <class T>
void* address(T* thing) {
  return reinterpret_cast<void*>(thing);
}

}  // namespace

void* resolve(const std::string& symbol) {
  static const std::map<std::string, void*> symbols = {
      {"__Block_copy", address(&copyBlock)},
      {"__NSConcreteStackBlock", stackBlock},
      {"__dispatch_main_q", mainQueue},
      {"_bzero", address(&clear)},
      {"_memcpy", address(&std::memcpy)},
      {"_memset", address(&std::memset)},
      {"_class_addIvar", address(&addNothing)},
      {"_class_addMethod", address(&addMethod)},
      {"_class_addProperty", address(&addNothing)},
      {"_class_getInstanceMethod", address(&getClass)},
      {"_class_getInstanceVariable", address(&instanceVariable)},
      {"_dispatch_async", address(&dispatchAsync)},
      {"_ivar_getOffset", address(&ivarOffset)},
      {"_object_getClass", address(&getClass)},
      {"_objc_allocateClassPair", address(&allocateClassPair)},
      {"_objc_disposeClassPair", address(&ignore)},
      {"_objc_getClass", address(&getClass)},
      {"_objc_msgSend", address(&sendMessage)},
      {"_objc_msgSendSuper2", address(&sendMessage)},
      {"_objc_registerClassPair", address(&ignore)},
      {"_objc_release", address(&releaseAny)},
      {"_objc_retain", address(&retain)},
      {"_sel_registerName", address(&registerName)},
      {"_MSHookMessageEx", address(&hook)},
  };
  const auto found = symbols.find(symbol);
  return found == symbols.end() ? nullptr : found->second;
}

void start(const Signing& how) {
  signing = &how;
}

void* method(const char* selector) {
  const auto found = methods.find(selector);
  if (found == methods.end()) fail(std::string("nobody implements ") + selector);
  return signing->checkFunction(found->second, selector);
}

void* object() {
  return theObject;
}

void runQueue() {
  for (Block* block : queue) {
    void* invoke = signing->checkStoredFunction(&block->invoke, "a block's function");
    reinterpret_cast<void (*)(Block*)>(invoke)(block);
    release(block);
  }
  queue.clear();
}

}  // namespace host
