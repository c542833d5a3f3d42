// What nodes show, as SVG: texts, images, shapes, gradients.
#pragma once

#include <map>
#include <string>

#include "simulator/drawing/Scene.h"
#include "simulator/drawing/SvgLines.h"
#include "simulator/drawing/SvgWriter.h"

namespace sim {

// The families that stand in for the phone's own font, in order of preference: for the document,
// and as a style for the texts of class "display".
std::string svgFonts();
std::string svgDisplayStyle();

class SvgContent {
 public:
  SvgContent(SvgLines& lines, const ImageReference& image) : lines_(lines), image_(image) {}

  // Stretched: a length is not drawn as long across as along.
  void add(const scene::Attributes& attributes, bool isStretched);

 private:
  void add(const scene::Text& text, const scene::Attributes& attributes);
  void add(const scene::Image& image, const scene::Attributes& attributes);
  void add(const scene::Shape& shape, const scene::Attributes& attributes);
  void add(const scene::Gradient& gradient, const scene::Attributes& attributes);
  void add(std::monostate, const scene::Attributes&) {}
  // The name of a filter that gives that colour to what is opaque.
  std::string tint(const scene::Color& color);

  SvgLines& lines_;
  const ImageReference& image_;
  std::map<scene::Color, std::string> tints_;
  int gradients_ = 0;
  bool isStretched_ = false;
};

}  // namespace sim
