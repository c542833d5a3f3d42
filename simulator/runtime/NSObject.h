// The root class. What it says about itself in strings (description and its kin) belongs to
// Foundation and is added there.
#pragma once

namespace simulator::runtime {

void registerRootClass();

}  // namespace simulator::runtime
