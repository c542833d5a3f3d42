// The start tag of one SVG element, attribute by attribute.
#pragma once

#include <string>
#include <string_view>

#include "simulator/drawing/Scene.h"

namespace sim {

// Shortest form, rounded to that many decimals: "0.5", "12", "-3.25"; never "-0".
std::string svgNumber(double value, int decimals = 2);
// Characters that XML reserves are written as entities; those that it forbids are left out.
std::string svgText(std::string_view utf8);

std::string svgColor(const scene::Color& color);  // "#0a84ff", without its alpha

class SvgElement {
 public:
  explicit SvgElement(std::string_view name) : tag_("<" + std::string(name)) {}

  SvgElement& text(std::string_view attribute, std::string_view value);
  SvgElement& number(std::string_view attribute, double value);
  // Left out when it has its usual value.
  SvgElement& number(std::string_view attribute, double value, double usual);
  SvgElement& rect(const CGRect& rect);                                      // x, y, width, height
  SvgElement& color(std::string_view attribute, const scene::Color& color);  // and its opacity
  SvgElement& transform(const CGAffineTransform& transform);  // left out for the identity

  std::string empty() const { return tag_ + "/>"; }
  std::string open() const { return tag_ + ">"; }

 private:
  std::string tag_;
};

std::string svgPath(const std::vector<PathElement>& path);  // "M1 2 L3 4.5 Z"

// A rectangle with the corners that a layer of these attributes has.
SvgElement svgBox(const CGRect& rect, const scene::Attributes& attributes);
double cornerRadius(const scene::Attributes& attributes);  // at most half of the shorter side

}  // namespace sim
