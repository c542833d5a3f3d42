// libdispatch, as far as the extension uses it.
#pragma once

#include <cstdint>
#include <utility>

#include "objc/Block.h"

extern "C" {
struct dispatch_queue_s;
using dispatch_queue_t = dispatch_queue_s*;
using dispatch_time_t = std::uint64_t;

extern dispatch_queue_s _dispatch_main_q;  // what dispatch_get_main_queue() gives the address of
void dispatch_async(dispatch_queue_t queue, id block);
void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, id block);
dispatch_time_t dispatch_time(dispatch_time_t base, std::int64_t nanoseconds);
}

namespace dispatch {

inline dispatch_queue_t mainQueue() {
  return &_dispatch_main_q;
}

// Runs `task` on the main thread, after what is running there now.
template <class Task>
void onMain(Task task) {
  auto block = objc::block<void()>(std::move(task));
  dispatch_async(mainQueue(), block.get().get());
}

template <class Task>
void onMainAfter(std::int64_t nanoseconds, Task task) {
  constexpr dispatch_time_t now = 0;  // DISPATCH_TIME_NOW
  auto block = objc::block<void()>(std::move(task));
  dispatch_after(dispatch_time(now, nanoseconds), mainQueue(), block.get().get());
}

}  // namespace dispatch
