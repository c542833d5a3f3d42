#include "simulator/machine/WallClock.h"

#include <utility>
#include <vector>

#include "simulator/machine/Phone.h"

namespace sim {
namespace {

struct WallClockListeners {
  std::vector<std::function<void(double)>> all;
};

auto& wallClockListeners() {
  return Phone::current().state<WallClockListeners>().all;
}

}  // namespace

void moveWallClock(double distance) {
  Clock& clock = Phone::current().clock;
  clock.setWall(clock.wall() + distance);
  for (const auto& each : wallClockListeners()) each(distance);
}

void onWallClockMove(std::function<void(double)> listener) {
  wallClockListeners().push_back(std::move(listener));
}

}  // namespace sim
