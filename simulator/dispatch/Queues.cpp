#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "objc/Block.h"
#include "simulator/dispatch/Dispatch.h"
#include "simulator/machine/Phone.h"
#include "simulator/machine/WorkerThread.h"
#include "simulator/standin/Fidelity.h"
#include "simulator/standin/Registration.h"

struct dispatch_queue_s {
  const char* label;
};

namespace {

using WorkBlock = objc::Block<void()>;

dispatch_queue_s globalQueue{"com.apple.root.default-qos"};

// Time 0 means "now", so uptime 0 needs another value. An hour leaves room for times before it.
constexpr dispatch_time_t timeAtBoot = 3600 * std::uint64_t(sim::nanosecondsPerSecond);

// Copied now, as the platform does, and run at most once.
std::function<void()> retainedWork(id block) {
  auto copy = static_cast<id>(_Block_copy(block));
  return [kept = std::shared_ptr<objc_object>(copy, _Block_release)] { WorkBlock(kept.get())(); };
}

void enqueue(sim::Nanoseconds due, dispatch_queue_t queue, std::function<void()> work) {
  if (queue == &globalQueue) work = [inner = std::move(work)] { sim::runOnWorkerThread(inner); };
  sim::Phone::current().queue.add(due, std::move(work));
}

void runNow(dispatch_queue_t queue, const std::function<void()>& work) {
  if (queue != &_dispatch_main_q) return work();  // on the caller's thread, as the platform does
  if (gettid() == getpid()) {                     // the thread that the program started on
    std::fputs("dispatch_sync called on the main queue from the main thread\n", stderr);
    std::abort();
  }
  sim::runOnMainThread(work);
}

sim::Nanoseconds uptimeAt(dispatch_time_t when) {
  if (when == DISPATCH_TIME_NOW) return sim::Phone::current().clock.uptime();
  return sim::Nanoseconds(when) - sim::Nanoseconds(timeAtBoot);
}

}  // namespace

extern "C" {

dispatch_queue_s _dispatch_main_q{"com.apple.main-thread"};

dispatch_queue_t dispatch_get_global_queue(std::intptr_t, std::uintptr_t) {
  return &globalQueue;
}

void dispatch_async(dispatch_queue_t queue, id block) {
  enqueue(uptimeAt(DISPATCH_TIME_NOW), queue, retainedWork(block));
}

void dispatch_async_f(dispatch_queue_t queue, void* context, dispatch_function_t work) {
  enqueue(uptimeAt(DISPATCH_TIME_NOW), queue, [context, work] { work(context); });
}

void dispatch_sync(dispatch_queue_t queue, id block) {
  runNow(queue, [block] { WorkBlock{block}(); });
}

void dispatch_sync_f(dispatch_queue_t queue, void* context, dispatch_function_t work) {
  runNow(queue, [context, work] { work(context); });
}

void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, id block) {
  if (when != DISPATCH_TIME_FOREVER) enqueue(uptimeAt(when), queue, retainedWork(block));
}

void dispatch_after_f(dispatch_time_t when, dispatch_queue_t queue, void* context,
                      dispatch_function_t work) {
  if (when != DISPATCH_TIME_FOREVER)
    enqueue(uptimeAt(when), queue, [context, work] { work(context); });
}

dispatch_time_t dispatch_time(dispatch_time_t when, std::int64_t delta) {
  if (when == DISPATCH_TIME_FOREVER) return when;
  if (when == DISPATCH_TIME_NOW)
    when = timeAtBoot + dispatch_time_t(sim::Phone::current().clock.uptime());
  constexpr auto last = dispatch_time_t(INT64_MAX);
  if (delta >= 0)
    return dispatch_time_t(delta) >= last - when ? DISPATCH_TIME_FOREVER
                                                 : when + dispatch_time_t(delta);
  const auto back = dispatch_time_t(-(delta + 1)) + 1;  // INT64_MIN has no positive counterpart
  return back >= when ? 1 : when - back;
}

}  // extern "C"

namespace sim {

void registerDispatch() {
  const char* framework = "libdispatch";
  recordFunction(framework, "_dispatch_main_q", {Grade::real, ""});
  for (const char* name :
       {"dispatch_after", "dispatch_after_f", "dispatch_async", "dispatch_async_f", "dispatch_once",
        "dispatch_once_f", "dispatch_sync", "dispatch_sync_f"})
    recordFunction(framework, name, {Grade::real, ""});
  recordFunction(framework, "dispatch_time", {Grade::partial, "knows uptime, not wall times"});
  recordFunction(framework, "dispatch_get_global_queue",
                 {Grade::partial,
                  "one queue for every priority; its work runs on threads of its own, one at a "
                  "time, in order, while the main thread waits"});
}

}  // namespace sim
