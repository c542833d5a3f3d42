#include "simulator/runtime/Initialization.h"

#include <condition_variable>
#include <mutex>
#include <utility>

#include "simulator/runtime/Class.h"
#include "simulator/runtime/MethodResolution.h"
#include "simulator/runtime/Send.h"

namespace sim::runtime {
namespace {

struct InitializationMonitor {
  std::mutex lock;
  std::condition_variable finished;
};

InitializationMonitor& monitor() {
  static auto* instance = new InitializationMonitor;
  return *instance;
}

// True when the calling thread is the one to send +initialize now.
bool begin(Class cls) {
  std::unique_lock guard(monitor().lock);
  ClassData& data = *cls->data;
  if (data.initializing && data.initializingThread == std::this_thread::get_id()) return false;
  monitor().finished.wait(guard, [&] { return !data.initializing; });
  if (cls->has(ClassFlag::initialized)) return false;
  data.initializing = true;
  data.initializingThread = std::this_thread::get_id();
  return true;
}

// Called with the monitor's lock held.
void openToAll(Class cls) {
  cls->data->initializing = false;
  cls->metaclass()->flags.fetch_or(ClassFlag::initialized, std::memory_order_release);
  cls->flags.fetch_or(ClassFlag::initialized, std::memory_order_release);
  for (Class subclass : std::exchange(cls->data->initializedEarly, {})) openToAll(subclass);
}

void finish(Class cls) {
  const std::lock_guard guard(monitor().lock);
  Class superclass = cls->superclass;
  if (superclass != nullptr && !superclass->has(ClassFlag::initialized)) {
    // The calling thread is still in the superclass's +initialize and has come here from inside
    // it. Other threads must not get past that one by way of the subclass.
    superclass->data->initializedEarly.push_back(cls);
    return;
  }
  openToAll(cls);
  monitor().finished.notify_all();
}

}  // namespace

void initializeIfNeeded(Class cls) {
  if (cls->has(ClassFlag::initialized)) return;
  Class target = cls->data->instanceClass;
  if (target->superclass != nullptr) initializeIfNeeded(target->superclass);
  if (!begin(target)) return;
  static const SEL initialize = sel_registerName("initialize");
  // A root class of its own may have none.
  if (hasMethod(target->metaclass(), initialize)) send<void>(asObject(target), initialize);
  finish(target);
}

}  // namespace sim::runtime
