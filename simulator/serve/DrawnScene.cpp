#include <nlohmann/json.hpp>

#include "objc/Ownership.h"
#include "simulator/drawing/SceneBuilder.h"
#include "simulator/drawing/SceneJson.h"
#include "simulator/drawing/ScreenMotion.h"
#include "simulator/phone/Phone.h"
#include "simulator/serve/SceneSource.h"

namespace sim {
namespace {

class DrawnScene final : public SceneSource {
 public:
  nlohmann::json scene() override {
    const objc::AutoreleasePool pool;
    moves_ = screenMoves(Phone::current().clock.uptime());
    return wholeSceneJson(flattened(screenScene()));
  }
  // As of the last scene: what has come to rest since must be shown at rest.
  bool isAnimating() const override { return moves_; }

 private:
  bool moves_ = false;
};

}  // namespace

std::unique_ptr<SceneSource> drawnScene() {
  return std::make_unique<DrawnScene>();
}

}  // namespace sim
