#include "simulator/drawing/SvgContent.h"

#include "simulator/drawing/SvgElement.h"

namespace sim {
namespace {

// Families for what the phone's fonts have and these do not.
constexpr std::string_view otherFonts =
    "'Noto Sans Arabic', 'Noto Sans Hebrew', 'Noto Sans Devanagari', 'Noto Sans CJK JP', "
    "sans-serif";

double anchorX(const scene::Text& text, const CGRect& bounds) {
  switch (text.alignment) {
    case HorizontalAlignment::left:
      return bounds.origin.x;
    case HorizontalAlignment::center:
      return bounds.origin.x + bounds.size.width / 2;
    case HorizontalAlignment::right:
      break;
  }
  return bounds.origin.x + bounds.size.width;
}

double leftEdge(const scene::Text& text, const TextLine& line, const CGRect& bounds) {
  const double anchor = anchorX(text, bounds);
  if (text.alignment == HorizontalAlignment::left) return anchor;
  return text.alignment == HorizontalAlignment::center ? anchor - line.width / 2
                                                       : anchor - line.width;
}

// SVG counts start and end in the direction in which the text is read.
std::string_view anchorName(const scene::Text& text) {
  if (text.alignment == HorizontalAlignment::center) return "middle";
  const bool atStart = (text.alignment == HorizontalAlignment::left) != text.isRightToLeft;
  return atStart ? "start" : "end";
}

std::string numberList(const std::vector<double>& numbers) {
  std::string list;
  for (const double number : numbers) list += (list.empty() ? "" : " ") + svgNumber(number);
  return list;
}

void addStroke(SvgElement& element, const scene::Stroke& stroke) {
  constexpr const char* caps[] = {"butt", "round", "square"};
  constexpr const char* joins[] = {"miter", "round", "bevel"};
  element.color("stroke", stroke.color).number("stroke-width", stroke.width, 1);
  if (stroke.cap != LineCap::butt) element.text("stroke-linecap", caps[int(stroke.cap)]);
  if (stroke.join != LineJoin::miter)
    element.text("stroke-linejoin", joins[int(stroke.join)]);
  else
    element.number("stroke-miterlimit", stroke.miterLimit, 4);
  if (stroke.dashes.empty()) return;
  element.text("stroke-dasharray", numberList(stroke.dashes));
  element.number("stroke-dashoffset", stroke.dashPhase, 0);
}

}  // namespace

std::string svgFonts() {
  return "Inter, " + std::string(otherFonts);
}

std::string svgDisplayStyle() {
  return ".display{font-family:Inter Display, " + svgFonts() + "}";
}

void SvgContent::add(const scene::Attributes& attributes, bool isStretched) {
  isStretched_ = isStretched;
  std::visit([&](const auto& content) { add(content, attributes); }, attributes.content);
}

void SvgContent::add(const scene::Text& text, const scene::Attributes& attributes) {
  const CGRect& bounds = attributes.bounds;
  double baseline = bounds.origin.y + text.baseline;
  for (const TextLine& line : text.lines) {
    SvgElement element("text");
    if (text.style.isDisplay()) element.text("class", "display");
    // librsvg misjudges the length of stretched text, so such text begins where we say.
    element.number("x", isStretched_ ? leftEdge(text, line, bounds) : anchorX(text, bounds));
    element.number("y", baseline).number("font-size", text.style.pointSize);
    element.number("font-weight", text.style.cssWeight(), 400);
    element.number("letter-spacing", line.isTracked ? text.style.tracking() : 0, 0);
    if (text.style.monospacedDigits) element.text("style", "font-variant-numeric:tabular-nums");
    if (!isStretched_ && anchorName(text) != "start") element.text("text-anchor", anchorName(text));
    if (!isStretched_ && text.isRightToLeft) element.text("direction", "rtl");
    element.color("fill", text.color);
    lines_.add(element.open() + svgText(line.text) + "</text>");
    baseline += text.style.lineHeight();
  }
}

std::string SvgContent::tint(const scene::Color& color) {
  std::string& name = tints_[color];
  if (!name.empty()) return name;
  name = "tint" + std::to_string(tints_.size());
  std::string matrix;
  for (std::size_t i = 0; i < 3; ++i) matrix += "0 0 0 0 " + svgNumber(color[i], 4) + ' ';
  matrix += "0 0 0 " + svgNumber(color[3], 4) + " 0";
  lines_.add(
      SvgElement("filter").text("id", name).text("color-interpolation-filters", "sRGB").open() +
      SvgElement("feColorMatrix").text("values", matrix).empty() + "</filter>");
  return name;
}

void SvgContent::add(const scene::Image& image, const scene::Attributes&) {
  SvgElement element("image");
  element.rect(image.frame).text("preserveAspectRatio", "none");
  // About the middle of its frame.
  if (image.isMirrored)
    element.text("transform", "translate(" +
                                  svgNumber(2 * image.frame.origin.x + image.frame.size.width) +
                                  ") scale(-1 1)");
  if (image.tint) element.text("filter", "url(#" + tint(*image.tint) + ")");
  lines_.add(element.text("href", image_(image.file)).empty());
}

void SvgContent::add(const scene::Shape& shape, const scene::Attributes&) {
  SvgElement element("path");
  element.text("d", svgPath(shape.path));
  if (shape.fill)
    element.color("fill", *shape.fill);
  else
    element.text("fill", "none");
  if (shape.fill && shape.rule == FillRule::evenOdd) element.text("fill-rule", "evenodd");
  if (shape.stroke) addStroke(element, *shape.stroke);
  lines_.add(element.empty());
}

void SvgContent::add(const scene::Gradient& gradient, const scene::Attributes& attributes) {
  const std::string name = "gradient" + std::to_string(++gradients_);
  SvgElement element("linearGradient");
  element.text("id", name).number("x1", gradient.start.x).number("y1", gradient.start.y);
  lines_.begin(element.number("x2", gradient.end.x).number("y2", gradient.end.y).open());
  for (const auto& stop : gradient.stops)
    lines_.add(SvgElement("stop")
                   .number("offset", stop.at)
                   .text("stop-color", svgColor(stop.color))
                   .number("stop-opacity", stop.color[3], 1)
                   .empty());
  lines_.end("linearGradient");
  lines_.add(svgBox(attributes.bounds, attributes).text("fill", "url(#" + name + ")").empty());
}

}  // namespace sim
