#pragma once

#include "tools/nibc/encode/Layout.h"

namespace xib {

// The child <fontDescription> as UIFont; nothing without that child.
void encodeFontChild(Element& element, nib::Node& node, Layout& layout);

}  // namespace xib
