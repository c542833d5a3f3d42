#include "simulator/serve/Pace.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace sim {
namespace {

constexpr Nanoseconds millisecond = nanosecondsPerSecond / 1000;
constexpr double farthest = 1e9;  // seconds: nobody waits thirty years

}  // namespace

void Pace::rebase(Nanoseconds uptime, Moment now) {
  uptime_ = uptime;
  departure_ = now;
}

void Pace::setSpeed(double speed, Moment now) {
  rebase(uptimeAt(now), now);
  speed_ = std::clamp(speed, slowest, fastest);
}

void Pace::setPaused(bool paused, Moment now) {
  rebase(uptimeAt(now), now);
  paused_ = paused;
}

Nanoseconds Pace::exactUptimeAt(Moment now) const {
  if (paused_) return uptime_;
  const std::chrono::duration<double> passed = now - departure_;
  return uptime_ + nanoseconds(std::max(passed.count(), 0.0) * speed_);
}

Nanoseconds Pace::uptimeAt(Moment now) const {
  const Nanoseconds exact = exactUptimeAt(now);
  return std::max(uptime_, exact - exact % millisecond);
}

std::optional<Pace::Moment> Pace::momentOf(Nanoseconds uptime) const {
  if (paused_) return std::nullopt;
  // Up to the next whole millisecond, before which uptimeAt() does not say that it is reached.
  const Nanoseconds due = std::min(uptime, std::numeric_limits<Nanoseconds>::max() - millisecond);
  const Nanoseconds rounded =
      due <= uptime_ ? uptime_ : due + (millisecond - 1) - (due - 1) % millisecond;
  const double distance = std::min(seconds(rounded - uptime_) / speed_, farthest);
  return departure_ + std::chrono::nanoseconds(std::llround(std::ceil(distance * 1e9)));
}

}  // namespace sim
