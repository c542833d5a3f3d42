#pragma once

#include "tools/nibc/encode/Layout.h"

namespace xib {

// The outlets and actions of one object. Throws Error when something they refer to is missing or
// cannot be connected so.
void encodeConnections(UnreadConnections connections, Layout& layout);

}  // namespace xib
