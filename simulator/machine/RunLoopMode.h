// The mode of the main run loop. It is the default one, but tracking from where a finger takes hold
// of something that scrolls or slides until that rests; what waits for another mode waits then.
#pragma once

#include <functional>

namespace sim {

// In which modes something runs.
struct RunLoopModes {
  bool inDefault = false;
  bool inTracking = false;

  bool holdNow() const;
};

// The run loop tracks while there is one.
class Tracking {
 public:
  Tracking();
  ~Tracking();
  Tracking(const Tracking&) = delete;
  Tracking& operator=(const Tracking&) = delete;
};

// Once, when the mode is another.
void whenModeChanges(std::function<void()> task);

}  // namespace sim
