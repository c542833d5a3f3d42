// When views lay out their subviews.
#pragma once

#include "simulator/uikit/views/UIView.h"

namespace sim {

// The pass that the run loop makes before it sleeps: whatever needs it in visible windows lays
// itself out, from the windows down. An entry of the main queue, made when a view asks for it.
void queueLayoutPass();

// Now, from the uppermost ancestor that needs it.
void layoutIfNeeded(objc::Object view);

}  // namespace sim
