// The main thread's queue: everything that will happen on the phone, ordered by due time and
// then by arrival. Timers, dispatch_async and dispatch_after, delayed performs, animation ends
// and track ends are all entries of it.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <unordered_map>
#include <utility>

#include "simulator/machine/Clock.h"

namespace sim {

class MainQueue {
 public:
  explicit MainQueue(Clock& clock) : clock_(clock) {}

  using Task = std::function<void()>;
  using Ticket = std::uint64_t;  // of one entry; never 0, never used again

  // Any thread. A due time in the past means now. What is added while an entry runs, even with
  // the same due time, runs after it.
  Ticket add(Nanoseconds due, Task task);
  Ticket addNow(Task task) { return add(clock_.uptime(), std::move(task)); }
  // Any thread; forgetting an entry that has run does nothing.
  void cancel(Ticket ticket);

  // Forgets all entries, also those that are added while others are destroyed.
  void clear();

  // Main thread only. Runs every entry due up to `until`, moving the clock to each due time in
  // turn and at last to `until`. Each entry runs in an autorelease pool of its own.
  void runUntil(Nanoseconds until);
  // Runs what is due now, and what that adds for now.
  void runDue() { runUntil(clock_.uptime()); }

  std::optional<Nanoseconds> nextDue() const;

 private:
  struct Key {
    Nanoseconds due;
    Ticket ticket;
    auto operator<=>(const Key&) const = default;
  };
  using Entries = std::map<Key, Task>;
  std::optional<Task> takeDue(Nanoseconds until);

  Clock& clock_;
  mutable std::mutex mutex_;  // background threads may add
  Entries entries_;
  std::unordered_map<Ticket, Entries::iterator> places_;  // of all entries
  Ticket lastTicket_ = 0;
};

}  // namespace sim
