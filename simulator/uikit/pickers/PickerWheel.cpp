#include "simulator/uikit/pickers/PickerWheel.h"

#include <algorithm>
#include <cmath>

namespace sim {
namespace {

constexpr double beyondTheEnds = 0.4;    // of the finger's way, past the first or last row
constexpr double stillFinger = 0.1;      // seconds without a move: no swing is left
constexpr double coasting = 0.25;        // seconds: how far a speed carries
constexpr double gentle = 1 / coasting;  // stiffness after a swing: speed runs out by itself
constexpr double firm = 14;              // stiffness towards a chosen row
constexpr double atRest = 0.015;         // rows: half a point, which nobody sees
constexpr double slow = 0.3;             // rows a second
constexpr double fallsIntoPlace = 0.4;   // rows that are left of a swing
constexpr double swing = 1;              // rows a second: what is slower only falls into place

}  // namespace

// Held to the rows there are.
double PickerWheel::onWheel(double place) const {
  return wraps_ ? place : std::clamp(place, 0.0, double(std::max(rows_ - 1, 0L)));
}

void PickerWheel::hold() {
  holding_ = true;
  run_.reset();
  finger_ = position_;
  speed_ = 0;
}

double PickerWheel::held(double place) const {
  const double end = onWheel(place);
  return end + (place - end) * beyondTheEnds;
}

void PickerWheel::drag(double rows, Nanoseconds now) {
  if (!holding_) return;
  const double time = seconds(now - movedAt_);
  movedAt_ = now;
  finger_ += rows;
  position_ = held(finger_);
  if (time <= 0) return;  // speeds need time to have passed
  const double latest = rows / time;
  speed_ = time > stillFinger ? latest : 0.6 * latest + 0.4 * speed_;
}

void PickerWheel::release(Nanoseconds now) {
  if (!holding_) return;
  holding_ = false;
  if (seconds(now - movedAt_) > stillFinger) speed_ = 0;
  const bool swings = std::abs(speed_) > swing;
  const double target = onWheel(std::round(position_ + (swings ? speed_ * coasting : 0)));
  run(target, swings ? speed_ : 0, swings ? gentle : firm, now);
}

void PickerWheel::runTo(long place, Nanoseconds now) {
  holding_ = false;
  run(onWheel(double(place)), 0, firm, now);
}

void PickerWheel::run(double target, double speed, double stiffness, Nanoseconds now) {
  run_ = Run{now, target, position_ - target, speed, stiffness};
}

bool PickerWheel::advance(Nanoseconds now) {
  if (!run_) return false;
  const double time = seconds(now - run_->begin);
  const double lead = run_->speed + run_->stiffness * run_->offset;
  const double faded = std::exp(-run_->stiffness * time);
  const double away = (run_->offset + lead * time) * faded;
  const double speed = lead * faded - run_->stiffness * away;
  position_ = run_->target + away;
  // A swing would creep to its end: what looks still is to be still.
  if (run_->stiffness < firm && std::abs(away) < fallsIntoPlace)
    run(run_->target, speed, firm, now);
  if (std::abs(away) > atRest || std::abs(speed) > slow) return false;
  position_ = run_->target;
  run_.reset();
  return true;
}

}  // namespace sim
