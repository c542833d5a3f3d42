// The size that a view's constraints would give it by themselves.
#pragma once

#include "objc/Object.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

// As near to the target as the constraints let it be, each axis with a priority of its own.
CGSize fittingSize(objc::Object view, CGSize target, float horizontal, float vertical);

}  // namespace sim
