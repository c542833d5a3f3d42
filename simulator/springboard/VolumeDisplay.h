// The level at the screen's edge that a change of the volume shows for a moment.
#pragma once

namespace sim {

// From now on the display follows the sound. For the host's launch, once.
void followVolume();

}  // namespace sim
