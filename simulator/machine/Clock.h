// The phone's one clock, in virtual time.
#pragma once

#include <cstdint>

namespace sim {

using Nanoseconds = std::int64_t;
inline constexpr Nanoseconds nanosecondsPerSecond = 1'000'000'000;

// Rounds to the nearest nanosecond.
Nanoseconds nanoseconds(double seconds);
double seconds(Nanoseconds duration);
// `start` and a distance of either sign; between 0 and the last moment that the clock knows. What
// began before the phone did has a negative start.
Nanoseconds deadline(Nanoseconds start, Nanoseconds distance);

// Time goes no further: 100 years after the phone's start, a third of what the clock knows.
inline constexpr Nanoseconds latestUptime =
    Nanoseconds(100) * 365 * 24 * 3600 * nanosecondsPerSecond;

// Two readings of one time: uptime only ever moves forward with the main queue; the wall clock
// follows it and can be set, as a user or the network may set it.
class Clock {
 public:
  Nanoseconds uptime() const { return uptime_; }
  // Seconds since 2001-01-01 00:00:00 UTC, the reference date of NSDate.
  double wall() const { return wallAtZero_ + seconds(uptime_); }

  // Only the main queue calls this; never backwards.
  void advanceTo(Nanoseconds uptime);
  void setWall(double secondsSinceReferenceDate);

  // What a restart of the host carries over, exactly.
  double wallAtZero() const { return wallAtZero_; }
  void restore(Nanoseconds uptime, double wallAtZero);

 private:
  Nanoseconds uptime_ = 0;
  double wallAtZero_ = 820533600.0;  // 2027-01-01 22:00:00 UTC: every night starts alike
};

}  // namespace sim
