// What labels and buttons have in common.
#pragma once

#include "tools/nibc/encode/Layout.h"

namespace xib {

inline constexpr Choice lineBreakModes[] = {{"wordWrap", 0},       {"characterWrap", 1},
                                            {"clip", 2},           {"headTruncation", 3},
                                            {"tailTruncation", 4}, {"middleTruncation", 5}};

// An attribute, or, as for texts of several lines, the child <string key="...">; else empty.
std::string textOf(Element& element, const char* attribute);

}  // namespace xib
