// How one wheel of a picker moves under a finger: it follows, runs out when it is let go, and comes
// to rest on a row. Places are rows and parts of them; times are those of the phone's clock.
#pragma once

#include <optional>

#include "simulator/machine/Clock.h"

namespace sim {

class PickerWheel {
 public:
  // Of a wheel that wraps, the first row follows the last; its places go on beyond both.
  PickerWheel(long rows, bool wraps, long place)
      : rows_(rows), wraps_(wraps), position_(double(place)) {}

  double position() const { return position_; }
  bool isHeld() const { return holding_; }

  // A finger holds it. Each further move is by so many rows, counted in the rows' order.
  void hold();
  void drag(double rows, Nanoseconds now);
  void release(Nanoseconds now);
  // Runs to that place, or to the end that is nearest to it.
  void runTo(long place, Nanoseconds now);

  // Moves on to that time. True when it has come to rest with this step.
  bool advance(Nanoseconds now);

 private:
  // A spring without overshoot of its own: from `offset` rows away, at `speed` rows a second.
  struct Run {
    Nanoseconds begin;
    double target;
    double offset;
    double speed;
    double stiffness;  // 1 / s
  };
  double held(double place) const;
  double onWheel(double place) const;
  void run(double target, double speed, double stiffness, Nanoseconds now);

  long rows_;
  bool wraps_;
  bool holding_ = false;
  double position_;
  double finger_ = 0;  // where the finger has it, beyond the ends as well
  double speed_ = 0;   // rows a second, of late
  Nanoseconds movedAt_ = 0;
  std::optional<Run> run_;
};

}  // namespace sim
