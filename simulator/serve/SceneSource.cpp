#include "simulator/serve/SceneSource.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "objc/Ownership.h"
#include "simulator/drawing/Covered.h"
#include "simulator/drawing/SceneBuilder.h"
#include "simulator/drawing/SceneJson.h"
#include "simulator/drawing/ScreenMotion.h"
#include "simulator/machine/Phone.h"

namespace sim {

FlatScene SceneSource::look() {
  const objc::AutoreleasePool pool;
  moves_ = screenMoves(Phone::current().clock.uptime());
  scene::Node screen = screenScene();
  dropCoveredWindows(screen);
  return flattened(screen);
}

nlohmann::json SceneSource::whole() {
  known_ = look();
  return wholeSceneJson(known_);
}

nlohmann::json SceneSource::changes() {
  FlatScene now = look();
  const SceneChanges different = changesBetween(known_, now);
  nlohmann::json told;
  if (different.any()) told = changesJson(different);
  known_ = std::move(now);
  return told;
}

}  // namespace sim
