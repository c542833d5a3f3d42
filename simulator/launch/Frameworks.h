// The list of what a simulated phone is made of.
#pragma once

namespace sim {

// Registers all frameworks for the phone's set-up; once, when it boots.
void registerFrameworks();

}  // namespace sim
