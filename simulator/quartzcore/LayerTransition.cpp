#include "simulator/quartzcore/LayerTransition.h"

#include "simulator/quartzcore/CALayer.h"

namespace sim {
namespace {

TakePicture takePicture = nullptr;

}  // namespace

void setTakePicture(TakePicture take) {
  takePicture = take;
}

void beginTransition(CALayer& layer, const AnimationTiming& timing) {
  if (takePicture == nullptr) return;
  // The picture may show an earlier transition that is still running.
  layer.transition = {takePicture(layer), timing};
}

}  // namespace sim
