// What must be right only when somebody looks at the screen, such as a clock.
#pragma once

#include <functional>

namespace sim {

// From now on, before the screen is drawn. It may change views, but not ask for layout.
void beforeLooking(std::function<void()> update);

void prepareForLooking();

}  // namespace sim
