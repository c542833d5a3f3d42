// Points, sizes, rectangles and insets, which values hold as data.
#pragma once

#include <initializer_list>
#include <optional>
#include <string_view>
#include <vector>

#include "tools/nibc/nib/Archive.h"

namespace nib {

Data geometry(std::initializer_list<double> numbers);

// Nothing unless the data are numbers, of either width, and nothing else.
std::optional<std::vector<double>> geometryNumbers(std::string_view data);

}  // namespace nib
