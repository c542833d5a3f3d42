#include "simulator/runtime/AutoreleasePool.h"

#include <pthread.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <vector>

#include "simulator/runtime/Fatal.h"

namespace simulator::runtime {
namespace {

// All pools of one thread: the objects of the inner pools follow those of the outer ones; nil
// marks where a pool begins.
class PoolStack {
 public:
  static PoolStack& current();

  // The token is the pool's position plus one, so that no pool is the null pointer.
  void* push() {
    entries_.push_back(nullptr);
    return reinterpret_cast<void*>(entries_.size());
  }

  // Inner pools that are still there go too. Objects autoreleased by the releases join the pool
  // that is being emptied.
  void pop(void* token) {
    const auto size = reinterpret_cast<std::uintptr_t>(token);
    if (size == 0 || size > entries_.size() || entries_[size - 1] != nullptr) {
      fatal("invalid or prematurely freed autorelease pool %p", token);
    }
    while (entries_.size() > size) {
      id object = entries_.back();
      entries_.pop_back();
      objc_release(object);
    }
    entries_.pop_back();
  }

  bool add(id object) {
    if (entries_.empty()) {
      return false;
    }
    entries_.push_back(object);
    return true;
  }

  bool empty() const { return entries_.empty(); }

 private:
  std::vector<id> entries_;
};

thread_local PoolStack* currentStack = nullptr;

void endThread(void* memory) {
  auto* stack = static_cast<PoolStack*>(memory);
  // Other keys' destructors may already have run; this thread's pools must still be found.
  currentStack = stack;
  if (!stack->empty()) {
    stack->pop(reinterpret_cast<void*>(std::uintptr_t{1}));
  }
  currentStack = nullptr;
  delete stack;
}

// A key instead of a thread_local with a destructor: as on the platform, pools are emptied when
// a thread ends but not when exit() ends the program.
pthread_key_t threadEndKey() {
  static const pthread_key_t key = [] {
    pthread_key_t made{};
    if (pthread_key_create(&made, &endThread) != 0) {
      fatal("no thread key left for autorelease pools");
    }
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
  if (!PoolStack::current().add(object)) {
    std::fprintf(stderr,
                 "objc[%d]: MISSING POOLS: Object %p of class %s autoreleased with no pool in "
                 "place - just leaking\n",
                 static_cast<int>(getpid()), static_cast<void*>(object),
                 object_getClassName(object));
  }
  return object;
}

}  // namespace simulator::runtime

using namespace simulator::runtime;

void* objc_autoreleasePoolPush() {
  return PoolStack::current().push();
}

void objc_autoreleasePoolPop(void* pool) {
  PoolStack::current().pop(pool);
}
