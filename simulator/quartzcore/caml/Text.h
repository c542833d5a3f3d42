// The notations of values in a document of layers. All of them throw std::invalid_argument, with
// what was expected and what was found, for a text that is none.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "simulator/coregraphics/CGColor.h"
#include "simulator/coregraphics/CGPath.h"
#include "simulator/quartzcore/CATransform3D.h"

namespace sim::caml {

// A decimal number of moderate size (within a billion); nothing for any other text.
std::optional<double> number(std::string_view word);

double realOf(std::string_view text);  // "0.5"
long integerOf(std::string_view text);
bool flagOf(std::string_view text);                    // 0, 1, NO, YES, false, true
std::vector<double> numbersOf(std::string_view text);  // "1 2 3", with or without commas
ColorComponents colorOf(std::string_view text);        // gray or red green blue, then alpha if any
std::vector<PathElement> pathOf(std::string_view text);  // "x y m x y l x y x y x y c h"

// "scale(0.5, 0.5, 1)", "rotate(45deg)", "translate(1, 2)", "matrix(16 numbers)", "identity", and
// any of them one after the other: the last is applied to the layer first.
CATransform3D transformOf(std::string_view text);

// Found words, as errors quote them: of moderate length.
std::string quotedWord(std::string_view word);

}  // namespace sim::caml
