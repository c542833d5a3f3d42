#include "simulator/drawing/SvgWriter.h"

#include <algorithm>
#include <cmath>

#include "simulator/drawing/SvgContent.h"
#include "simulator/drawing/SvgElement.h"

namespace sim {
namespace {

using scene::Attributes;
using scene::Node;

bool isPlain(const Attributes& attributes) {
  return !attributes.background && !attributes.border && attributes.content.index() == 0;
}

// Nothing of it would be seen.
bool isEmpty(const Node& node) {
  if (!isPlain(node.attributes) || node.before) return false;
  for (const Node& child : node.children)
    if (!isEmpty(child)) return false;
  return true;
}

bool stretches(const CGAffineTransform& transform) {
  constexpr double tolerance = 1e-4;
  return std::abs(std::hypot(transform.a, transform.b) - std::hypot(transform.c, transform.d)) >
         tolerance;
}

class SvgWriter {
 public:
  explicit SvgWriter(const ImageReference& image) : content_(lines_, image) {}

  std::string document(const Node& node) {
    const CGRect& bounds = node.attributes.bounds;
    SvgElement svg("svg");
    svg.text("xmlns", "http://www.w3.org/2000/svg");
    svg.number("width", bounds.size.width).number("height", bounds.size.height);
    svg.text("viewBox", svgNumber(bounds.origin.x) + ' ' + svgNumber(bounds.origin.y) + ' ' +
                            svgNumber(bounds.size.width) + ' ' + svgNumber(bounds.size.height));
    svg.text("font-family", svgFonts());
    lines_.begin(svg.open());
    lines_.add("<style>" + svgDisplayStyle() + "</style>");
    addInside(node);
    lines_.end("svg");
    return lines_.text();
  }

 private:
  void add(const Node& node) {
    if (isEmpty(node)) return;
    SvgElement group("g");
    group.text("class", node.attributes.kind).transform(node.attributes.toParent);
    group.number("opacity", node.attributes.opacity, 1);
    const std::string mask = node.mask ? addMask(*node.mask) : "";
    if (!mask.empty()) group.text("mask", mask);
    lines_.begin(group.open());
    const bool before =
        std::exchange(isStretched_, isStretched_ || stretches(node.attributes.toParent));
    addInside(node);
    isStretched_ = before;
    lines_.end("g");
  }

  // While a node dissolves, both of its pictures.
  void addInside(const Node& node) {
    if (!node.before) return addPicture(node);
    lines_.begin(SvgElement("g").number("opacity", 1 - node.beforeOpacity).open());
    addPicture(node);
    lines_.end("g");
    lines_.begin(SvgElement("g").number("opacity", node.beforeOpacity).open());
    addInside(*node.before);
    lines_.end("g");
  }

  void addPicture(const Node& node) {
    const Attributes& attributes = node.attributes;
    if (attributes.background)
      lines_.add(
          svgBox(attributes.bounds, attributes).color("fill", *attributes.background).empty());
    const bool clips = attributes.clips && !(node.children.empty() && !hasContent(attributes));
    if (clips) beginClip(attributes);
    content_.add(attributes, isStretched_);
    addChildren(node);
    if (clips) lines_.end("g");
    if (attributes.border) addBorder(attributes);
  }

  static bool hasContent(const Attributes& attributes) { return attributes.content.index() != 0; }

  // The last child that blurs decides; what lies behind it is seen blurred only.
  void addChildren(const Node& node) {
    const auto blurs = [](const Node& child) { return child.attributes.backdropBlur > 0; };
    const auto blurring = std::find_if(node.children.rbegin(), node.children.rend(), blurs);
    auto next = node.children.begin();
    if (blurring != node.children.rend()) {
      const auto end = blurring.base() - 1;
      const std::string name = std::to_string(++blurs_);
      lines_.begin(SvgElement("g").text("id", "behind" + name).open());
      for (; next != end; ++next) add(*next);
      lines_.end("g");
      addBlurred(name, blurring->attributes.backdropBlur);
    }
    for (; next != node.children.end(); ++next) add(*next);
  }

  // Twice, over what lies behind as it is: a blurred picture fades at its edges.
  void addBlurred(const std::string& name, double radius) {
    lines_.add(SvgElement("filter")
                   .text("id", "blur" + name)
                   .text("color-interpolation-filters", "sRGB")
                   .open() +
               SvgElement("feGaussianBlur").number("stdDeviation", radius).empty() + "</filter>");
    SvgElement again("use");
    again.text("href", "#behind" + name).text("filter", "url(#blur" + name + ")");
    for (int i = 0; i < 2; ++i) lines_.add(again.empty());
  }

  void beginClip(const Attributes& attributes) {
    const std::string name = "clip" + std::to_string(++clips_);
    lines_.add(SvgElement("clipPath").text("id", name).open() +
               svgBox(attributes.bounds, attributes).empty() + "</clipPath>");
    lines_.begin(SvgElement("g").text("clip-path", "url(#" + name + ")").open());
  }

  // How the mask is named.
  std::string addMask(const Node& mask) {
    const std::string name = "mask" + std::to_string(++masks_);
    SvgElement element("mask");
    element.text("id", name).text("mask-type", "alpha").text("maskUnits", "userSpaceOnUse");
    // It reaches as far as what it cuts may lie.
    constexpr double far = 10000;
    lines_.begin(element.rect({{-far, -far}, {2 * far, 2 * far}}).open());
    add(mask);
    lines_.end("mask");
    return "url(#" + name + ")";
  }

  void addBorder(const Attributes& attributes) {
    const double width = attributes.border->width;
    CGRect middle = attributes.bounds;
    middle.origin = {middle.origin.x + width / 2, middle.origin.y + width / 2};
    middle.size = {middle.size.width - width, middle.size.height - width};
    SvgElement line("rect");
    line.rect(middle).number("rx", std::max(cornerRadius(attributes) - width / 2, 0.0), 0);
    line.text("fill", "none").color("stroke", attributes.border->color);
    lines_.add(line.number("stroke-width", width).empty());
  }

  SvgLines lines_;
  SvgContent content_;
  int clips_ = 0;
  int masks_ = 0;
  int blurs_ = 0;
  bool isStretched_ = false;
};

}  // namespace

std::string svgDocument(const Node& node, const ImageReference& image) {
  return SvgWriter(image).document(node);
}

}  // namespace sim
