// How the phone's time follows the wall clock.
#pragma once

#include <chrono>
#include <optional>

#include "simulator/machine/Clock.h"

namespace sim {

class Pace {
 public:
  using Moment = std::chrono::steady_clock::time_point;
  static constexpr double slowest = 1, fastest = 3600;

  double speed() const { return speed_; }
  bool isPaused() const { return paused_; }

  // From `now` on the phone's time is `uptime`, and goes on from there.
  void rebase(Nanoseconds uptime, Moment now);
  // Both leave the phone's time where it is at that moment.
  void setSpeed(double speed, Moment now);
  void setPaused(bool paused, Moment now);

  // The uptime that the phone should have reached. Whole milliseconds, rounded down: what people do
  // has times that are good to read in a script.
  Nanoseconds uptimeAt(Moment now) const;
  // When the phone should reach that uptime; nothing when it will not by itself.
  std::optional<Moment> momentOf(Nanoseconds uptime) const;

 private:
  Nanoseconds exactUptimeAt(Moment now) const;

  double speed_ = 1;
  bool paused_ = false;
  Nanoseconds uptime_ = 0;  // at the moment of departure
  Moment departure_{};
};

}  // namespace sim
