#pragma once

#include <string>

#include "tools/nibc/nib/Archive.h"

namespace xib {

// Compiles the text of an Interface Builder document into the layout that UIKit loads. Throws
// Error for whatever it cannot compile faithfully.
nib::Archive compile(std::string text);

}  // namespace xib
