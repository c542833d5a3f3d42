// What holds a layout together once its objects are made.
#pragma once

#include <vector>

#include "simulator/uikit/nib/NibDecoding.h"

namespace sim {

// Outlets and actions. Their objects are decoded first, as on the platform; they are connected
// when everything else is there.
class NibConnections {
 public:
  // Raises for a connection of an unknown kind.
  NibConnections(NibDecoding& decoding, const std::vector<std::uint32_t>& connections);

  void connect();

 private:
  struct Connection {
    std::uint32_t index;
    objc::Object source;
    objc::Object destination;
  };

  void connectOutlet(const Connection& outlet);
  void connectAction(const Connection& action);
  bool isFirstResponder(std::uint32_t connection) const;

  NibDecoding& decoding_;
  std::vector<Connection> connections_;  // the decoding keeps the objects
};

}  // namespace sim
