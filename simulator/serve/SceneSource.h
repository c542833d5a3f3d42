// What is on the phone's screen, as pages draw it.
#pragma once

#include <memory>
#include <nlohmann/json_fwd.hpp>

namespace sim {

class SceneSource {
 public:
  virtual ~SceneSource() = default;

  // {"root": ID, "nodes": {ID: NODE…}}. IDs are stable: a node that has not changed looks the same.
  // Must not change anything on the phone.
  virtual nlohmann::json scene() = 0;
  // Whether it changes by the mere passing of time.
  virtual bool isAnimating() const { return false; }
};

// As the screen is drawn.
std::unique_ptr<SceneSource> drawnScene();

}  // namespace sim
