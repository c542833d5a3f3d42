#include "tools/nibc/encode/Font.h"

#include <iterator>

namespace xib {
namespace {

enum Trait { italic = 1, bold = 2 };

// The weights of the system font, and the "usages" that UIKit knows them by.
constexpr Choice weights[] = {{"ultraLight", 0}, {"thin", 1},   {"light", 2},
                              {"regular", 3},    {"medium", 4}, {"semibold", 5},
                              {"bold", 6},       {"heavy", 7},  {"black", 8}};
constexpr const char* usages[] = {"CTFontUltraLightUsage", "CTFontThinUsage",   "CTFontLightUsage",
                                  "CTFontRegularUsage",    "CTFontMediumUsage", "CTFontDemiUsage",
                                  "CTFontEmphasizedUsage", "CTFontHeavyUsage",  "CTFontBlackUsage"};
static_assert(std::size(weights) == std::size(usages));
constexpr Choice systemTypes[] = {{"system", 0}, {"boldSystem", bold}, {"italicSystem", italic}};

nib::Node* descriptor(const char* attribute, const char* value, double size, Layout& layout) {
  nib::Graph& graph = layout.graph;
  nib::Node* made = graph.make("UIFontDescriptor");
  made->setObject(
      "UIFontDescriptorAttributes",
      graph.dictionary({{graph.string(attribute), graph.string(value)},
                        {graph.string("NSFontSizeAttribute"), graph.doubleNumber(size)}}));
  return made;
}

double pointSize(Element& font) {
  const double size = font.requiredNumber("pointSize");
  if (size <= 0) font.failAt("pointSize", "a font's size is positive (pointSize)");
  return size;
}

void encodeSystemFont(Element& font, nib::Node& node, Layout& layout) {
  const int traits = *font.choice("type", systemTypes);
  const auto weight = font.choice("weight", weights);
  if (weight && traits != 0) font.failAt("weight", "only the type \"system\" has weights");
  const double size = pointSize(font);
  // Size and traits say everything about a font of regular or bold weight.
  if (weight && *weight != 3 && *weight != 6)
    node.setObject("UIFontDescriptor",
                   descriptor("NSCTFontUIUsageAttribute", usages[*weight], size, layout));
  node.setDouble("UIFontPointSize", size);
  node.setInteger("UIFontTraits", weight == 6 ? int(bold) : traits);
  node.setBool("UISystemFont", true);
}

void encodeNamedFont(Element& font, nib::Node& node, Layout& layout) {
  const std::string name = font.requiredText("name");
  font.ignore({"family"});
  const double size = pointSize(font);
  node.setObject("UIFontName", layout.graph.string(name));
  node.setObject("UIFontDescriptor", descriptor("NSFontNameAttribute", name.c_str(), size, layout));
  node.setDouble("UIFontPointSize", size);
  node.setInteger("UIFontTraits", 0);
  node.setBool("UISystemFont", false);
}

}  // namespace

void encodeFontChild(Element& element, nib::Node& node, Layout& layout) {
  auto font = element.child("fontDescription", "fontDescription");
  if (!font) return;
  nib::Node* made = layout.graph.make("UIFont");
  if (font->has("name"))
    encodeNamedFont(*font, *made, layout);
  else if (font->has("type"))
    encodeSystemFont(*font, *made, layout);
  else
    font->fail("a <fontDescription> needs \"type\" or \"name\"");
  font->finish();
  node.setObject("UIFont", made);
}

}  // namespace xib
