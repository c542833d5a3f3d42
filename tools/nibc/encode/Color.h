#pragma once

#include "tools/nibc/encode/Layout.h"

namespace xib {

// A UIColor for a <color>. Throws Error for colours that are not known at build time and for
// spaces other than sRGB and the grey one of the same gamma.
nib::Node* encodeColor(Element color, Layout& layout);

// The child <color key="..."> under the key of the compiled layout; nothing without that child.
void encodeColorChild(Element& element, const char* key, nib::Node& node, const char* nibKey,
                      Layout& layout);

}  // namespace xib
