// How a label sets its text: once for sizes that fit and for drawing.
#pragma once

#include <vector>

#include "simulator/coretext/Typesetter.h"

namespace sim {

struct UILabel;

enum class HorizontalAlignment { left, center, right };

struct LabelText {
  FontStyle style;  // the label's font, made smaller where the label asks for it
  std::vector<TextLine> lines;
  double baseline = 0;  // of the first line, from the top of the bounds, in points
  HorizontalAlignment alignment = HorizontalAlignment::left;
  bool isRightToLeft = false;  // the direction in which it is read
};

// In the label's bounds.
LabelText labelText(const UILabel& label);

}  // namespace sim
