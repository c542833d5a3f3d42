// The platform's look of wheels, for all kinds of pickers.
#pragma once

#include "objc/Ownership.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/coretext/FontStyle.h"

namespace sim {

inline constexpr double pickerTitlePoints = 21;
inline constexpr FontStyle pickerDigits{23.5, 0, false};
inline constexpr FontStyle pickerUnit{17, 0.3, false};

// A label as large as its text; nil on a phone without labels. The colour nil is black.
objc::Strong<objc::Object> pickerLabel(objc::Object text, const FontStyle& style,
                                       objc::Object color);
// What lies behind the selected rows; nil on a phone without views.
objc::Strong<objc::Object> pickerBand();
CGRect pickerBandFrame(const CGRect& bounds, double rowHeight);

}  // namespace sim
