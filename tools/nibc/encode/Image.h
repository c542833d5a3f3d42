#pragma once

#include "tools/nibc/encode/Layout.h"

namespace xib {

// Remembers the sizes of <resources>' images and its system colours.
void readResources(Element& document, Layout& layout);

// The image that an attribute names, as a UIImageNibPlaceholder under the key of the compiled
// layout; nothing without the attribute.
void encodeImage(Element& element, const char* attribute, nib::Node& node, const char* nibKey,
                 Layout& layout);

}  // namespace xib
