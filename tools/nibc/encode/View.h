#pragma once

#include "tools/nibc/encode/Layout.h"

namespace xib {

// A view with everything below it, added to the layout's items; constraints and connections are
// left for later. The superview is nullptr for an outermost view. Throws Error.
nib::Node* encodeView(Element& element, const Item* superview, Layout& layout);

}  // namespace xib
