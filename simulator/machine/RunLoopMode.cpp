#include "simulator/machine/RunLoopMode.h"

#include <utility>
#include <vector>

#include "simulator/machine/Phone.h"

namespace sim {
namespace {

struct MainRunLoop {
  int tracked = 0;
  std::vector<std::function<void()>> waiting;
};

MainRunLoop& mainRunLoop() {
  return Phone::current().state<MainRunLoop>();
}

void changeMode() {
  for (const auto& task : std::exchange(mainRunLoop().waiting, {})) task();
}

}  // namespace

bool RunLoopModes::holdNow() const {
  return mainRunLoop().tracked > 0 ? inTracking : inDefault;
}

Tracking::Tracking() {
  if (++mainRunLoop().tracked == 1) changeMode();
}

Tracking::~Tracking() {
  if (--mainRunLoop().tracked == 0) changeMode();
}

void whenModeChanges(std::function<void()> task) {
  mainRunLoop().waiting.push_back(std::move(task));
}

}  // namespace sim
