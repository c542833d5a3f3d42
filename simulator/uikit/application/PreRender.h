// What must be right only when somebody looks at the screen, such as a clock.
#pragma once

#include <functional>

namespace sim {

// Runs from now on before each drawing of the screen. It may change views, but not ask for layout.
void addPreRenderHook(std::function<void()> update);

// For whoever is about to draw the screen.
void runPreRenderHooks();

}  // namespace sim
