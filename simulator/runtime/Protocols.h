#pragma once

namespace simulator::runtime {

// The class of protocols, and the root class's own protocol.
void registerProtocolClass();

}  // namespace simulator::runtime
