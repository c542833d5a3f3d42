// Compiled layouts: UINib, -[NSBundle loadNibNamed:owner:options:], and the initialisers that
// UIKit's classes are decoded with.
#pragma once

namespace sim {

// After UIKit's views.
void registerNibLoading();

}  // namespace sim
