// A change of a layer with all that is in it, shown as one picture dissolving into the other.
#pragma once

#include <memory>
#include <optional>

#include "simulator/quartzcore/LayerAnimation.h"

namespace sim {

struct CALayer;

// What a layer looked like: only those who draw know what is in it.
using LayerPicture = std::shared_ptr<const void>;

struct LayerTransition {
  LayerPicture before;  // none: no transition
  AnimationTiming timing;

  bool isRunning(Nanoseconds now) const { return before && now < timing.end(); }
};

// Takes the picture of a layer as it is seen now. Whoever draws the phone says how; until then
// transitions have no pictures.
using TakePicture = LayerPicture (*)(const CALayer& layer);
void setTakePicture(TakePicture take);

// From now on: what the layer looks like at this moment dissolves into what it will look like. It
// takes the place of the layer's earlier transition, whose group is returned while that had not
// ended: it is for the caller to interrupt it.
std::shared_ptr<AnimationGroup> beginTransition(CALayer& layer, const AnimationTiming& timing);

}  // namespace sim
