// How the host's own pictures are drawn. Every step does nothing on a phone that lacks a class.
#pragma once

#include <initializer_list>
#include <string_view>

#include "objc/Ownership.h"

namespace sim {

struct Rgb {
  double red, green, blue;  // 0 to 255
};

objc::Object coreColor(const Rgb& color, double alpha = 1);  // CGColor, autoreleased
// Of a CAGradientLayer, evenly unless there are places, from 0 to 1.
void setGradient(objc::Object layer, std::initializer_list<Rgb> colors,
                 std::initializer_list<double> places = {});

struct ShapeStyle {
  objc::Object fill;  // CGColor; nil fills nothing
  objc::Object line;  // CGColor; nil draws no line
  double lineWidth = 1;
};
// A new CAShapeLayer on top of the layer's; for the path's text see pathFromText.
objc::Strong<objc::Object> addShapeLayer(objc::Object layer, std::string_view path,
                                         const ShapeStyle& style);

}  // namespace sim
