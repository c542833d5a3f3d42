#include <iterator>

#include "tools/nibc/encode/Color.h"
#include "tools/nibc/encode/Font.h"
#include "tools/nibc/encode/Image.h"
#include "tools/nibc/encode/Text.h"
#include "tools/nibc/encode/ViewClass.h"
#include "tools/nibc/nib/Geometry.h"

namespace xib {
namespace {

constexpr Choice buttonTypes[] = {{"custom", 0},           {"system", 1},    {"roundedRect", 1},
                                  {"detailDisclosure", 2}, {"infoLight", 3}, {"infoDark", 4},
                                  {"contactAdd", 5},       {"close", 7}};
constexpr Choice states[] = {{"normal", 0}, {"highlighted", 1}, {"disabled", 2}, {"selected", 4}};
constexpr Choice horizontalAlignments[] = {{"center", 0}, {"left", 1},    {"right", 2},
                                           {"fill", 3},   {"leading", 4}, {"trailing", 5}};
constexpr Choice verticalAlignments[] = {{"center", 0}, {"top", 1}, {"bottom", 2}, {"fill", 3}};

void encodeControl(Element& control, nib::Node& node) {
  const auto horizontal = control.choice("contentHorizontalAlignment", horizontalAlignments);
  if (horizontal.value_or(0) != 0) node.setInteger("UIContentHorizontalAlignment", *horizontal);
  const auto vertical = control.choice("contentVerticalAlignment", verticalAlignments);
  if (vertical.value_or(0) != 0) node.setInteger("UIContentVerticalAlignment", *vertical);
  if (!control.flag("enabled", true)) node.setBool("UIDisabled", true);
  if (control.flag("selected", false)) node.setBool("UISelected", true);
  if (control.flag("highlighted", false)) node.setBool("UIHighlighted", true);
}

nib::Node* encodeState(Element& state, Layout& layout) {
  nib::Node* content = layout.graph.make("UIButtonContent");
  const std::string title = textOf(state, "title");
  if (!title.empty()) content->setObject("UITitle", layout.graph.string(title));
  encodeImage(state, "image", *content, "UIImage", layout);
  encodeImage(state, "backgroundImage", *content, "UIBackgroundImage", layout);
  encodeColorChild(state, "titleColor", *content, "UITitleColor", layout);
  encodeColorChild(state, "titleShadowColor", *content, "UIShadowColor", layout);
  state.finish();
  return content;
}

void encodeStates(Element& button, nib::Node& node, Layout& layout) {
  std::vector<std::pair<nib::Node*, nib::Node*>> contents;
  for (const Choice& each : states) {
    auto state = button.child("state", each.name);
    if (!state) continue;
    nib::Node* content = encodeState(*state, layout);
    if (!content->values.empty())
      contents.emplace_back(layout.graph.integerNumber(each.value), content);
  }
  if (!contents.empty())
    node.setObject("UIButtonStatefulContent", layout.graph.dictionary(contents));
}

// The source writes insets by coordinate.
void encodeInsets(Element& button, const char* key, nib::Node& node, const char* nibKey) {
  auto inset = button.child("inset", key);
  if (!inset) return;
  node.setData(nibKey,
               nib::geometry({inset->requiredNumber("minY"), inset->requiredNumber("minX"),
                              inset->requiredNumber("maxY"), inset->requiredNumber("maxX")}));
  inset->finish();
}

void encodeBehaviour(Element& button, nib::Node& node) {
  if (button.flag("reversesTitleShadowWhenHighlighted", false))
    node.setBool("UIReversesTitleShadowWhenHighlighted", true);
  if (button.flag("showsTouchWhenHighlighted", false))
    node.setBool("UIShowsTouchWhenHighlighted", true);
  if (button.flag("adjustsImageWhenHighlighted", true))
    node.setBool("UIAdjustsImageWhenHighlighted", true);
  if (button.flag("adjustsImageWhenDisabled", true))
    node.setBool("UIAdjustsImageWhenDisabled", true);
  if (const int type = button.choice("buttonType", buttonTypes).value_or(0))
    node.setInteger("UIButtonType", type);
}

}  // namespace

void encodeButton(Element& button, nib::Node& node, Layout& layout) {
  encodeControl(button, node);
  encodeStates(button, node, layout);
  encodeInsets(button, "contentEdgeInsets", node, "UIContentEdgeInsets");
  encodeInsets(button, "titleEdgeInsets", node, "UITitleEdgeInsets");
  encodeInsets(button, "imageEdgeInsets", node, "UIImageEdgeInsets");
  encodeBehaviour(button, node);
  if (const auto mode = button.choice("lineBreakMode", lineBreakModes))
    node.setInteger("UILineBreakMode", *mode);
  encodeFontChild(button, node, layout);
}

}  // namespace xib
