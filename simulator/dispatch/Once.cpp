#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "objc/Block.h"
#include "simulator/dispatch/Dispatch.h"

namespace {

// The values of a predicate. The last is the platform's: its headers look for it inline.
constexpr dispatch_once_t untouched = 0;
constexpr dispatch_once_t running = 1;
constexpr dispatch_once_t done = ~0l;

// On this thread: to tell waiting for oneself, which never ends, from waiting for another.
thread_local std::vector<dispatch_once_t*> ours;

void stopWhenRecursive(dispatch_once_t* predicate) {
  if (std::find(ours.begin(), ours.end(), predicate) == ours.end()) return;
  std::fputs("dispatch_once called recursively with one predicate\n", stderr);
  std::abort();
}

}  // namespace

extern "C" void dispatch_once_f(dispatch_once_t* predicate, void* context,
                                dispatch_function_t function) {
  const std::atomic_ref state(*predicate);
  dispatch_once_t expected = untouched;
  if (state.compare_exchange_strong(expected, running)) {
    ours.push_back(predicate);
    function(context);
    ours.pop_back();
    state.store(done);
    state.notify_all();
    return;
  }
  if (expected == done) return;
  stopWhenRecursive(predicate);
  while (state.load() == running) state.wait(running);
}

extern "C" void dispatch_once(dispatch_once_t* predicate, id block) {
  dispatch_once_f(predicate, &block,
                  [](void* work) { objc::Block<void()> (*static_cast<id*>(work))(); });
}
