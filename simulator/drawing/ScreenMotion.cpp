#include "simulator/drawing/ScreenMotion.h"

#include <algorithm>

#include "simulator/foundation/Kind.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/uikit/application/UIWindow.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

bool moves(const CALayer& layer, Nanoseconds now) {
  if (layer.hidden) return false;
  if (layer.transition.isRunning(now)) return true;
  const auto runs = [now](const LayerAnimation& each) { return each.timing.end() > now; };
  if (std::any_of(layer.animations.begin(), layer.animations.end(), runs)) return true;
  return std::any_of(layer.children.begin(), layer.children.end(),
                     [now](const auto& child) { return moves(CALayer::of(child.get()), now); });
}

}  // namespace

bool screenMoves(Nanoseconds now) {
  for (const auto& window : UIWindow::visibleWindows()) {
    const CALayer* layer = stateOf<CALayer>(UIView::layerOf(window.get()));
    if (layer != nullptr && moves(*layer, now)) return true;
  }
  return false;
}

}  // namespace sim
