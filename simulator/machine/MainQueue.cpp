#include "simulator/machine/MainQueue.h"

#include <algorithm>

#include "objc/Ownership.h"

namespace sim {

MainQueue::Ticket MainQueue::add(Nanoseconds due, Task task) {
  const std::lock_guard lock(mutex_);
  const Ticket ticket = ++lastTicket_;
  // Clamped here, so that an entry due long ago does not overtake what already waits for now.
  const Key key{std::max(due, clock_.uptime()), ticket};
  places_.emplace(ticket, entries_.emplace(key, std::move(task)).first);
  return ticket;
}

void MainQueue::cancel(Ticket ticket) {
  Task forgotten;  // destroyed after the lock is given back: captures may cancel others
  const std::lock_guard lock(mutex_);
  const auto found = places_.find(ticket);
  if (found == places_.end()) return;
  forgotten = std::move(found->second->second);
  entries_.erase(found->second);
  places_.erase(found);
}

void MainQueue::clear() {
  std::map<Key, Task> forgotten;  // destroyed without the lock, as in cancel()
  do {
    forgotten.clear();
    const std::lock_guard lock(mutex_);
    forgotten.swap(entries_);
    places_.clear();
  } while (!forgotten.empty());
}

void MainQueue::runUntil(Nanoseconds until) {
  while (std::optional<Task> task = takeDue(until)) {
    const objc::AutoreleasePool pool;
    // Whatever is thrown here is nobody's: it ends the process where it is thrown.
    [&task]() noexcept { (*task)(); }();
    task.reset();  // captures are part of the entry: released inside its pool
  }
  clock_.advanceTo(until);
}

std::optional<Nanoseconds> MainQueue::nextDue() const {
  const std::lock_guard lock(mutex_);
  if (entries_.empty()) return std::nullopt;
  return entries_.begin()->first.due;
}

std::optional<MainQueue::Task> MainQueue::takeDue(Nanoseconds until) {
  const std::lock_guard lock(mutex_);
  if (entries_.empty() || entries_.begin()->first.due > until) return std::nullopt;
  auto entry = entries_.extract(entries_.begin());
  places_.erase(entry.key().ticket);
  clock_.advanceTo(entry.key().due);
  return std::move(entry.mapped());
}

}  // namespace sim
