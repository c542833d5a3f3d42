// The layouts of the Now Playing module, as its header and its controller number them.
#pragma once

namespace sim {

enum MRULayout : long {
  minimizedLayout = 0,  // the small module of Control Center
  routingLayout = 1,    // the audio routes below the header
  expandedLayout = 2,   // the full player
  lockScreenLayout = 3,
};

}  // namespace sim
