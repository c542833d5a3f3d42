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

void beginTransition(CALayer& layer, const AnimationTiming& timing) {
  const TakePicture takePicture = Phone::current().state<Pictures>().take;
  if (takePicture == nullptr) return;
  // The picture may show an earlier transition that is still running.
  layer.transition = {takePicture(layer), timing};
}

}  // namespace sim
