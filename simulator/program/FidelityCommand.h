// dozewell-simulator fidelity
#pragma once

namespace sim {

int printFidelity();

}  // namespace sim
