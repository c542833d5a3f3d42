#include "simulator/machine/WorkerThread.h"

#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>

#include "objc/Ownership.h"

namespace sim {
namespace {

// The one place where a worker and the waiting main thread meet.
class Rendezvous {
 public:
  // Main thread: runs what is asked for until the worker has finished.
  void serve() {
    std::unique_lock lock(mutex_);
    for (;;) {
      changed_.wait(lock, [this] { return finished_ || asked_ != nullptr; });
      if (asked_ == nullptr) return;
      const std::function<void()>& work = *asked_;
      lock.unlock();
      work();
      lock.lock();
      asked_ = nullptr;
      changed_.notify_all();
    }
  }

  // Worker.
  void ask(const std::function<void()>& work) {
    std::unique_lock lock(mutex_);
    asked_ = &work;
    changed_.notify_all();
    changed_.wait(lock, [this] { return asked_ == nullptr; });
  }

  void finish() {
    const std::lock_guard lock(mutex_);
    finished_ = true;
    changed_.notify_all();
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  const std::function<void()>* asked_ = nullptr;
  bool finished_ = false;
};

thread_local Rendezvous* rendezvous = nullptr;

}  // namespace

void runOnWorkerThread(const std::function<void()>& work) {
  Rendezvous place;
  std::exception_ptr failure;
  std::thread worker([&] {
    rendezvous = &place;
    try {
      const objc::AutoreleasePool pool;
      work();
    } catch (...) {
      failure = std::current_exception();
    }
    place.finish();
  });
  place.serve();
  worker.join();
  if (failure) std::rethrow_exception(failure);
}

void runOnMainThread(const std::function<void()>& work) {
  rendezvous->ask(work);
}

}  // namespace sim
