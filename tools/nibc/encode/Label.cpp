#include "tools/nibc/encode/Color.h"
#include "tools/nibc/encode/Font.h"
#include "tools/nibc/encode/Text.h"
#include "tools/nibc/encode/ViewClass.h"
#include "tools/nibc/nib/Geometry.h"

namespace xib {
namespace {

constexpr Choice textAlignments[] = {
    {"left", 0}, {"center", 1}, {"right", 2}, {"justified", 3}, {"natural", 4}};
constexpr Choice baselines[] = {{"alignBaselines", 0}, {"alignCenters", 1}, {"none", 2}};

void encodeColors(Element& label, nib::Node& node, Layout& layout) {
  encodeColorChild(label, "textColor", node, "UITextColor", layout);
  encodeColorChild(label, "highlightedColor", node, "UIHighlightedColor", layout);
  encodeColorChild(label, "shadowColor", node, "UIShadowColor", layout);
}

void encodeShadowOffset(Element& label, nib::Node& node) {
  double width = 0, height = -1;
  if (auto offset = label.child("size", "shadowOffset")) {
    width = offset->requiredNumber("width");
    height = offset->requiredNumber("height");
    offset->finish();
  }
  node.setData("UIShadowOffset", nib::geometry({width, height}));
}

void encodeLines(Element& label, nib::Node& node) {
  const auto lines = label.integer("numberOfLines").value_or(1);
  if (lines < 0) label.failAt("numberOfLines", "a number of lines is not negative");
  if (lines != 1) node.setInteger("UINumberOfLines", lines);
  if (const auto mode = label.choice("lineBreakMode", lineBreakModes))
    node.setInteger("UILineBreakMode", *mode);
  node.setInteger("UITextAlignment", label.choice("textAlignment", textAlignments).value_or(0));
  if (const int baseline = label.choice("baselineAdjustment", baselines).value_or(0))
    node.setInteger("UIBaselineAdjustment", baseline);
}

// Documents leave the flag out where it is on.
void encodeShrinking(Element& label, nib::Node& node) {
  if (label.flag("adjustsFontSizeToFit", true)) node.setBool("UIAdjustsFontSizeToFit", true);
  const double scale = label.number("minimumScaleFactor").value_or(0);
  if (scale < 0 || scale > 1)
    label.failAt("minimumScaleFactor", "a scale factor goes from 0 to 1 (minimumScaleFactor)");
  if (scale != 0) node.setFloat("UIMinimumScaleFactor", float(scale));
  if (const auto size = label.number("minimumFontSize"))
    node.setFloat("UIMinimumFontSize", float(*size));
  if (const auto width = label.number("preferredMaxLayoutWidth"))
    node.setFloat("UIPreferredMaxLayoutWidth", float(*width));
}

}  // namespace

void encodeLabel(Element& label, nib::Node& node, Layout& layout) {
  const std::string text = textOf(label, "text");
  if (!text.empty()) node.setObject("UIText", layout.graph.string(text));
  encodeFontChild(label, node, layout);
  encodeColors(label, node, layout);
  encodeShadowOffset(label, node);
  encodeLines(label, node);
  encodeShrinking(label, node);
  if (!label.flag("enabled", true)) node.setBool("UIEnabled", false);
  if (label.flag("adjustsFontForContentSizeCategory", false))
    node.setBool("UIAdjustsFontForContentSizeCategory", true);
}

}  // namespace xib
