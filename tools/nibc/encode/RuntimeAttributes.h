#pragma once

#include "tools/nibc/encode/Layout.h"

namespace xib {

// Values that are set by key path once everything is loaded: <userDefinedRuntimeAttributes>.
void encodeRuntimeAttributes(Element& element, nib::Node& node, Layout& layout);

}  // namespace xib
