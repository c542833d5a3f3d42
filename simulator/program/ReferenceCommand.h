// dozewell-simulator commands
#pragma once

namespace sim {

int printReference();

}  // namespace sim
