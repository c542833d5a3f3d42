#include "simulator/runtime/AutoreleasePool.h"

#include <pthread.h>

#include <cstdint>
#include <cstdio>
#include <vector>

#include "simulator/runtime/Fatal.h"
#include "simulator/runtime/ShownAddresses.h"

namespace sim::runtime {
namespace {

// All pools of one thread: the objects of the inner pools follow those of the outer ones; nil
// marks where a pool begins. What was autoreleased without a pool lies below the first.
class PoolStack {
 public:
  static PoolStack& current();

  // The token is the pool's position plus one, so that no pool is the null pointer.
  void* push() {
    entries_.push_back(nullptr);
    ++pools_;
    return reinterpret_cast<void*>(entries_.size());
  }

  // Inner pools that are still there go too. Objects autoreleased by the releases join the pool
  // that is being emptied.
  void pop(void* token) {
    const auto size = reinterpret_cast<std::uintptr_t>(token);
    if (size == 0 || size > entries_.size() || entries_[size - 1] != nullptr)
      fatal("invalid or prematurely freed autorelease pool %p", token);
    releaseDownTo(size);
    releaseDownTo(size - 1);
  }

  void add(id object) { entries_.push_back(object); }
  bool hasPool() const { return pools_ > 0; }

  // The thread ends.
  void releaseAll() { releaseDownTo(0); }

 private:
  void releaseDownTo(std::size_t size) {
    while (entries_.size() > size) {
      id object = entries_.back();
      entries_.pop_back();
      pools_ -= object == nullptr ? 1 : 0;
      objc_release(object);
    }
  }

  std::vector<id> entries_;
  std::size_t pools_ = 0;
};

thread_local PoolStack* currentStack = nullptr;

void endThread(void* memory) {
  auto* stack = static_cast<PoolStack*>(memory);
  // Other keys' destructors may already have run; this thread's pools must still be found.
  currentStack = stack;
  stack->releaseAll();
  currentStack = nullptr;
  delete stack;
}

// A key instead of a thread_local with a destructor: as on the platform, pools are emptied when
// a thread ends but not when exit() ends the program.
pthread_key_t threadEndKey() {
  static const pthread_key_t key = [] {
    pthread_key_t made{};
    if (pthread_key_create(&made, &endThread) != 0)
      fatal("no thread key left for autorelease pools");
    return made;
  }();
  return key;
}

PoolStack& PoolStack::current() {
  if (currentStack == nullptr) {
    currentStack = new PoolStack;
    pthread_setspecific(threadEndKey(), currentStack);
  }
  return *currentStack;
}

}  // namespace

id addToAutoreleasePool(id object) {
  PoolStack& stack = PoolStack::current();
  if (!stack.hasPool()) {
    std::fprintf(stderr,
                 "objc: MISSING POOLS: Object 0x%zx of class %s autoreleased with no pool in "
                 "place - kept until its thread ends\n",
                 shownAddress(object), object_getClassName(object));
  }
  stack.add(object);
  return object;
}

}  // namespace sim::runtime

using namespace sim::runtime;

void* objc_autoreleasePoolPush() {
  return PoolStack::current().push();
}

void objc_autoreleasePoolPop(void* pool) {
  PoolStack::current().pop(pool);
}
