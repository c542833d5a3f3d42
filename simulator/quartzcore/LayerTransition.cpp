#include "simulator/quartzcore/LayerTransition.h"

#include "simulator/machine/Phone.h"
#include "simulator/quartzcore/CALayer.h"

namespace sim {
namespace {

struct Pictures {
  TakePicture take = nullptr;
};

}  // namespace

void setTakePicture(TakePicture take) {
  Phone::current().state<Pictures>().take = take;
}

std::shared_ptr<AnimationGroup> beginTransition(CALayer& layer, const AnimationTiming& timing) {
  const TakePicture takePicture = Phone::current().state<Pictures>().take;
  const bool replaces = layer.transition.timing.end() > Phone::current().clock.uptime();
  auto replaced = replaces ? layer.transition.timing.group : nullptr;
  // The picture may show an earlier transition that is still running.
  layer.transition = {takePicture != nullptr ? takePicture(layer) : nullptr, timing};
  timing.group->add(layer);
  return replaced;
}

}  // namespace sim
