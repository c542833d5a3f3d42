// Work on another thread, in an order that never changes from run to run.
#pragma once

#include <functional>

namespace sim {

// Runs the work on a thread of its own, in an autorelease pool, and waits for its end. While the
// main thread waits it runs what the work hands to it with runOnMainThread. An exception of the
// work is thrown again here.
void runOnWorkerThread(const std::function<void()>& work);

// From a worker thread: has the waiting main thread run the work, and waits for its end.
void runOnMainThread(const std::function<void()>& work);

}  // namespace sim
