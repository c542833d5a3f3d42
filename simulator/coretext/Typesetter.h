// Breaks text into lines and shortens what does not fit.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "simulator/coretext/FontStyle.h"

namespace sim {

struct TextLine {
  std::string text;       // UTF-8, without the blanks at its end
  double width = 0;       // points
  bool isTracked = true;  // whether all of it takes FontStyle's room between letters
  bool operator==(const TextLine&) const = default;
};

// Between words where possible; at most so many lines, 0 for as many as it takes. The last line
// ends with an ellipsis when more text would follow or when it is too long itself.
std::vector<TextLine> typeset(std::string_view utf8, const FontStyle& style, double width,
                              long lines);

}  // namespace sim
