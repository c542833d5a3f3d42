// What a single view or layer shows, apart from its background and what is below it.
#pragma once

#include "simulator/drawing/Scene.h"
#include "simulator/quartzcore/CALayer.h"

namespace sim {

// The components of a UIColor or a CGColor; nothing for nil and for wholly transparent ones.
std::optional<scene::Color> sceneColor(objc::Object color);

// `bounds` as they are seen. The view is nil for a layer that has none.
scene::Content contentOf(objc::Object view, const CALayer& layer, const CGRect& bounds);

}  // namespace sim
