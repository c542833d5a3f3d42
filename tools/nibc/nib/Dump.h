#pragma once

#include <string>

#include "tools/nibc/nib/Archive.h"

namespace nib {

// The whole file for people to read: one line for each object and each of its values, in the
// file's order. Ends with a line break.
std::string dump(const Archive& archive);

}  // namespace nib
