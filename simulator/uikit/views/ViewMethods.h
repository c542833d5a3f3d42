// UIView's methods, by subject: each adds its own to the class.
#pragma once

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {

void addViewGeometry(StandIn<UIView>& view);    // frame, bounds, transform, converting points
void addViewTree(StandIn<UIView>& view);        // superview, subviews, window
void addViewLayout(StandIn<UIView>& view);      // setNeedsLayout, sizeToFit …
void addAutoLayout(StandIn<UIView>& view);      // constraints
void addViewAppearance(StandIn<UIView>& view);  // alpha, hidden, colours
void addAccessibility(StandIn<UIView>& view);   // label, value, traits
void addHitTesting(StandIn<UIView>& view);
void addViewAnimations(StandIn<UIView>& view);
void addViewTransitions(StandIn<UIView>& view);

}  // namespace sim
