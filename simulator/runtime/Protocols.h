#pragma once

namespace sim::runtime {

// The class of protocols, and the root class's own protocol.
void registerProtocolClass();

}  // namespace sim::runtime
