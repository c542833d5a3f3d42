// The media module was built anew in 16.0: without the routing button and the embedding view of
// before, with the routes in the player's own container.
#pragma once

#include "simulator/standin/Versions.h"

namespace sim {

inline bool isModuleOf16() {
  return systemMajor() >= 16;
}

}  // namespace sim
