// Ctrl-C and the like, which end a serving process in order.
#pragma once

#include <functional>
#include <thread>

namespace sim {

// As long as it lives, a thread of its own takes them. None is lost: what comes before or after
// waits for the next one, also across exec(). Only where they are blocked.
class EndSignals {
 public:
  explicit EndSignals(std::function<void()> whenTold);
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

  // In this thread, and in those that it starts from now on.
  static void block();
  static void unblock();

 private:
  std::thread thread_;
};

}  // namespace sim
