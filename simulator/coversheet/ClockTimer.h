// The timer of the Clock, the system's application: the one whose countdown the lock screen is for.
#pragma once

#include <functional>
#include <map>
#include <nlohmann/json_fwd.hpp>
#include <optional>

#include "simulator/machine/Phone.h"

namespace sim {

class ClockTimer {
 public:
  explicit ClockTimer(Phone& phone);
  ClockTimer(const ClockTimer&) = delete;
  ClockTimer& operator=(const ClockTimer&) = delete;

  // That of Phone::current(), made on first use. A process of its own runs it: it goes on while the
  // host restarts.
  static ClockTimer& current();

  void start(double duration);  // seconds; takes the place of one that runs
  void stop();

  // Seconds since the reference date; nothing while no timer runs.
  std::optional<double> endDate() const { return endDate_; }

  // Called at every start, stop and end, until the observer is forgotten by its number.
  long observe(std::function<void()> observer);
  void forget(long number) { observers_.erase(number); }

 private:
  void setEndDate(std::optional<double> endDate);
  void scheduleEnd();
  nlohmann::json save() const;
  void restore(const nlohmann::json& saved);

  Phone& phone_;
  std::optional<double> endDate_;
  MainQueue::Ticket end_ = 0;  // the queue's entry for the end
  std::map<long, std::function<void()>> observers_;
  long lastObserver_ = 0;
};

}  // namespace sim
