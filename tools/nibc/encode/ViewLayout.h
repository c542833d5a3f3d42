// Where a view is and how it moves.
#pragma once

#include "tools/nibc/encode/Layout.h"

namespace xib {

void encodeGeometry(Element& element, nib::Node& node);
void encodeAutoresizing(Element& element, nib::Node& node);
// Everything about constraints; the constraints themselves are left for later.
void encodeLayoutKeys(Element& element, const Item* item, Layout& layout);

}  // namespace xib
