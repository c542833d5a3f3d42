#include "tools/nibc/encode/Color.h"

#include "tools/nibc/nib/Quoting.h"

namespace xib {
namespace {

double component(Element& color, const char* attribute) {
  const double value = color.requiredNumber(attribute);
  if (value < 0 || value > 1)
    color.failAt(attribute, "a colour component goes from 0 to 1 (" + std::string(attribute) + ")");
  return value;
}

// Colours are kept as floats; one that is no float is kept a second time in full.
void setComponent(nib::Node& node, const std::string& key, double value) {
  node.setFloat(key.c_str(), float(value));
  if (double(float(value)) != value) node.setDouble((key + "-Double").c_str(), value);
}

void checkSpace(Element& color, const Layout& layout, bool isGray) {
  const std::string space = color.requiredText("colorSpace");
  const std::string custom = color.text("customColorSpace").value_or("");
  const bool isKnownCustom =
      space == "custom" && custom == (isGray ? "genericGamma22GrayColorSpace" : "sRGB");
  const bool isDevice = space == (isGray ? "deviceWhite" : "deviceRGB");
  const bool isCalibrated = space == (isGray ? "calibratedWhite" : "calibratedRGB");
  if (isKnownCustom || isDevice || (isCalibrated && !layout.colorMatched)) return;
  color.failAt("colorSpace", "the colour space " + nib::quoted(space == "custom" ? custom : space) +
                                 " is not supported; use " +
                                 (isGray ? "genericGamma22GrayColorSpace" : "sRGB"));
}

void encodeComponents(Element& color, nib::Node& node, const Layout& layout) {
  const bool isGray = color.has("white");
  checkSpace(color, layout, isGray);
  node.setInteger("UIColorComponentCount", isGray ? 2 : 4);
  if (isGray) {
    setComponent(node, "UIWhite", component(color, "white"));
  } else {
    setComponent(node, "UIRed", component(color, "red"));
    setComponent(node, "UIGreen", component(color, "green"));
    setComponent(node, "UIBlue", component(color, "blue"));
  }
  setComponent(node, "UIAlpha", component(color, "alpha"));
}

// The name goes first; the components are for systems that do not know it.
void encodeSystemColor(Element& color, const char* attribute, nib::Node& node, Layout& layout) {
  const std::string name = color.requiredText(attribute);
  node.setObject("UISystemColorName", layout.graph.string(name));
  const auto known = layout.systemColors.find(name);
  if (known != layout.systemColors.end()) {
    Element fallback = known->second;
    encodeComponents(fallback, node, layout);
    fallback.finish();
  } else if (color.has("colorSpace")) {
    encodeComponents(color, node, layout);
  } else {
    color.failAt(attribute, "<resources> has no system colour " + nib::quoted(name));
  }
}

}  // namespace

nib::Node* encodeColor(Element color, Layout& layout) {
  nib::Node* node = layout.graph.make("UIColor");
  if (color.has("systemColor"))
    encodeSystemColor(color, "systemColor", *node, layout);
  else if (color.has("cocoaTouchSystemColor"))
    encodeSystemColor(color, "cocoaTouchSystemColor", *node, layout);
  else
    encodeComponents(color, *node, layout);
  color.finish();
  return node;
}

void encodeColorChild(Element& element, const char* key, nib::Node& node, const char* nibKey,
                      Layout& layout) {
  if (auto color = element.child("color", key))
    node.setObject(nibKey, encodeColor(*color, layout));
  else if (auto none = element.child("nil", key))
    none->finish();
}

}  // namespace xib
