// Text as its fonts set it: by HarfBuzz.
#pragma once

#include <cstddef>
#include <string_view>

#include "simulator/coretext/FontStyle.h"

namespace sim {

struct ShapedSize {
  double ems = 0;            // the width, in multiples of the point size
  std::size_t clusters = 0;  // characters as a reader counts them that take room
};

// In one line, without the room between letters. Remembered by text and face.
ShapedSize shapedSize(std::u16string_view text, const FontStyle& style);

}  // namespace sim
