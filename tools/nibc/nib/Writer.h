#pragma once

#include <string>

#include "tools/nibc/nib/Archive.h"

namespace nib {

// The bytes of the file. The archive's indices must be within their tables.
std::string write(const Archive& archive);

}  // namespace nib
