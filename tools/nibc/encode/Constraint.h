#pragma once

#include "tools/nibc/encode/Layout.h"

namespace xib {

// Fills the constraint's object. Throws Error for items that are not inside the view that owns the
// constraint, and for pairs of attributes that UIKit refuses.
void encodeConstraint(UnreadConstraint constraint, Layout& layout);

}  // namespace xib
