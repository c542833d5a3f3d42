#include "simulator/coversheet/ClockTimer.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "simulator/foundation/Deadline.h"

namespace sim {

ClockTimer::ClockTimer(Phone& phone) : phone_(phone) {
  phone.survives("clock timer", {[this] { return save(); },
                                 [this](const nlohmann::json& saved) { restore(saved); }});
}

ClockTimer& ClockTimer::current() {
  return Phone::current().state<ClockTimer>();
}

void ClockTimer::start(double duration) {
  setEndDate(phone_.clock.wall() + duration);
}

void ClockTimer::stop() {
  setEndDate(std::nullopt);
}

void ClockTimer::setEndDate(std::optional<double> endDate) {
  endDate_ = endDate;
  scheduleEnd();
  tellObservers();
}

void ClockTimer::scheduleEnd() {
  phone_.queue.cancel(std::exchange(end_, 0));
  if (!endDate_) return;
  end_ = phone_.queue.add(uptimeAt(phone_.clock, *endDate_), [this] {
    // The wall clock may have been set back meanwhile.
    if (uptimeAt(phone_.clock, *endDate_) > phone_.clock.uptime()) return scheduleEnd();
    phone_.journal.record("Clock timer ends");
    setEndDate(std::nullopt);
  });
}

nlohmann::json ClockTimer::save() const {
  return endDate_ ? nlohmann::json(*endDate_) : nlohmann::json();
}

void ClockTimer::restore(const nlohmann::json& saved) {
  if (!saved.is_null()) endDate_ = saved.get<double>();
  scheduleEnd();
}

}  // namespace sim
