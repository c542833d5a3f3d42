#pragma once

namespace sim {

// arc4random itself is declared by the system.
void recordRandomNumbers();

}  // namespace sim
