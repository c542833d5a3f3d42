// How the Settings application looks: its colours, and which side is which.
#pragma once

#include "objc/Ownership.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim::style {

// UIColors, autoreleased.
objc::Object background();
objc::Object card();
objc::Object pressedCard();
objc::Object line();
objc::Object secondaryText();  // of text that explains
objc::Object blue();
objc::Object green();

inline constexpr double margin = 16;   // points
inline constexpr double hairline = 1;  // pixels of a screen of scale 1

// In a view of that width: the other side where the interface runs from right to left.
CGRect placed(CGRect frame, double width);
// Text alignments: towards the beginning of a line, and towards its end.
long leading();
long trailing();

// A symbol in a square of 16 points; the others look the same from both sides.
enum class Symbol { forward, back, check };
// Drawn in that colour on top of the view; it takes no touches. nil without a view.
objc::Strong<objc::Object> addSymbol(objc::Object view, Symbol symbol, objc::Object color);
inline constexpr double symbolSide = 16;

}  // namespace sim::style
