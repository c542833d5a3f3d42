#include "simulator/drawing/SvgElement.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace sim {
std::string svgColor(const scene::Color& color) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text = "#";
  for (std::size_t i = 0; i < 3; ++i) {
    const auto value = unsigned(std::lround(std::clamp(color[i], 0.0, 1.0) * 255));
    text += digits[value / 16];
    text += digits[value % 16];
  }
  return text;
}

std::string svgNumber(double value, int decimals) {
  const double scale = std::pow(10, decimals);
  const double rounded = std::round(value * scale) / scale;
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                 rounded == 0 ? 0.0 : rounded, std::chars_format::fixed);
  return {digits.data(), end.ptr};
}

std::string svgText(std::string_view utf8) {
  std::string escaped;
  for (const char byte : utf8) {
    if (byte == '&')
      escaped += "&amp;";
    else if (byte == '<')
      escaped += "&lt;";
    else if (byte == '>')
      escaped += "&gt;";
    else if (byte == '"')
      escaped += "&quot;";
    else if (static_cast<unsigned char>(byte) >= 0x20)
      escaped += byte;
  }
  return escaped;
}

SvgElement& SvgElement::text(std::string_view attribute, std::string_view value) {
  tag_.append(" ").append(attribute).append("=\"").append(svgText(value)).append("\"");
  return *this;
}

SvgElement& SvgElement::number(std::string_view attribute, double value) {
  return text(attribute, svgNumber(value));
}

SvgElement& SvgElement::number(std::string_view attribute, double value, double usual) {
  return svgNumber(value) == svgNumber(usual) ? *this : number(attribute, value);
}

SvgElement& SvgElement::rect(const CGRect& rect) {
  number("x", rect.origin.x, 0).number("y", rect.origin.y, 0);
  return number("width", rect.size.width).number("height", rect.size.height);
}

SvgElement& SvgElement::color(std::string_view attribute, const scene::Color& color) {
  text(attribute, svgColor(color));
  return number(std::string(attribute) + "-opacity", color[3], 1);
}

SvgElement& SvgElement::transform(const CGAffineTransform& transform) {
  constexpr int decimals = 5;  // factors, which lengths multiply
  const std::array<double, 4> factors = {transform.a, transform.b, transform.c, transform.d};
  std::string written;
  for (const double factor : factors) written += svgNumber(factor, decimals) + ' ';
  const std::string moved = svgNumber(transform.tx) + ' ' + svgNumber(transform.ty);
  if (written != "1 0 0 1 ") return text("transform", "matrix(" + written + moved + ')');
  return moved == "0 0" ? *this : text("transform", "translate(" + moved + ')');
}

std::string svgPath(const std::vector<PathElement>& path) {
  using Kind = PathElement::Kind;
  std::string data;
  for (const PathElement& element : path) {
    if (!data.empty()) data += ' ';
    const char letter = element.kind == Kind::move    ? 'M'
                        : element.kind == Kind::line  ? 'L'
                        : element.kind == Kind::cubic ? 'C'
                                                      : 'Z';
    data += letter;
    const std::size_t points = element.kind == Kind::cubic   ? 3
                               : element.kind == Kind::close ? 0
                                                             : 1;
    for (std::size_t i = 0; i < points; ++i)
      data += (i > 0 ? " " : "") + svgNumber(element.points[i].x) + ' ' +
              svgNumber(element.points[i].y);
  }
  return data;
}

double cornerRadius(const scene::Attributes& attributes) {
  const CGSize size = attributes.bounds.size;
  return std::min(attributes.cornerRadius, std::min(size.width, size.height) / 2);
}

SvgElement svgBox(const CGRect& rect, const scene::Attributes& attributes) {
  SvgElement element("rect");
  element.rect(rect).number("rx", cornerRadius(attributes), 0);
  return element;
}

}  // namespace sim
