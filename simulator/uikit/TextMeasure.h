// How much room text takes: by a table of widths, alike on every machine.
#pragma once

#include <string_view>

#include "simulator/uikit/Geometry.h"

namespace sim {

struct TextStyle {
  double pointSize = 17;
  double lineHeight = 20.287109375;  // points
  long lines = 1;                    // at most; 0: as many as it takes
};

// Points, of one line.
double textWidth(std::string_view utf8, double pointSize);
// Broken between words to fit the width; whole points.
CGSize textSize(std::string_view utf8, const TextStyle& style, double width);

}  // namespace sim
