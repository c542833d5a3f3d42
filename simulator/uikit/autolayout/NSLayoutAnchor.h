// Edges, centres and lengths of views as objects that make constraints.
#pragma once

#include "objc/Class.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {

struct NSLayoutAnchor : objc::Implementation<NSLayoutAnchor> {
  objc::Weak<objc::Object> item;  // UIView
  long attribute = 0;

  // Of subclasses: horizontal and vertical places, lengths.
  static void registerClasses();
};

void addAnchors(StandIn<UIView>& view);

}  // namespace sim
