// The root class. What it says about itself in strings (description and its kin) belongs to
// Foundation and is added there.
#pragma once

namespace sim::runtime {

void registerRootClass();

}  // namespace sim::runtime
