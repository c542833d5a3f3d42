// What is on the phone's screen, as pages draw it.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include "simulator/drawing/FlatScene.h"

namespace sim {

// Looks at the screen without changing anything on the phone. The phone's thread only.
class SceneSource {
 public:
  // All of it; changes are told from here on.
  nlohmann::json whole();
  // What is different since it was last told, null when nothing is.
  nlohmann::json changes();
  // Whether it would have changed by the mere passing of time when it was last looked at: what has
  // come to rest since must be shown at rest.
  bool isAnimating() const { return moves_; }

 private:
  FlatScene look();

  FlatScene known_;
  bool moves_ = false;
};

}  // namespace sim
