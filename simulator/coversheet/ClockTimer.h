// The timer of the Clock, the system's application: the one whose countdown the lock screen is for.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <optional>

#include "simulator/machine/Observed.h"
#include "simulator/machine/Phone.h"

namespace sim {

// Its observers are told of every start, stop and end.
class ClockTimer : public Observed {
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

 private:
  void setEndDate(std::optional<double> endDate);
  void scheduleEnd();
  nlohmann::json save() const;
  void restore(const nlohmann::json& saved);

  Phone& phone_;
  std::optional<double> endDate_;
  MainQueue::Ticket end_ = 0;  // the queue's entry for the end
};

}  // namespace sim
