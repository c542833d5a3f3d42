#include "tools/nibc/encode/ViewClass.h"

namespace xib {
namespace {

constexpr Choice axes[] = {{"horizontal", 0}, {"vertical", 1}};
constexpr Choice distributions[] = {{"fill", 0},
                                    {"fillEqually", 1},
                                    {"fillProportionally", 2},
                                    {"equalSpacing", 3},
                                    {"equalCentering", 4}};
constexpr Choice stackAlignments[] = {{"fill", 0},          {"leading", 1},     {"top", 1},
                                      {"firstBaseline", 2}, {"center", 3},      {"trailing", 4},
                                      {"bottom", 4},        {"lastBaseline", 5}};

// In a source every subview of a stack view is an arranged one.
nib::Node* arrangedSubviews(const nib::Node& node, Layout& layout) {
  std::vector<nib::Node*> views;
  for (const auto& [key, content] : node.values) {
    if (key != "UISubviews") continue;
    for (const auto& [elementKey, element] : std::get<nib::Node*>(content)->values)
      if (const auto* view = std::get_if<nib::Node*>(&element)) views.push_back(*view);
  }
  return layout.graph.array(views);
}

}  // namespace

void encodeStackView(Element& stackView, nib::Node& node, Layout& layout) {
  node.setObject("UIStackViewArrangedSubviews", arrangedSubviews(node, layout));
  node.setInteger("UIStackViewAxis", stackView.choice("axis", axes).value_or(0));
  node.setInteger("UIStackViewDistribution",
                  stackView.choice("distribution", distributions).value_or(0));
  node.setInteger("UIStackViewAlignment",
                  stackView.choice("alignment", stackAlignments).value_or(0));
  node.setDouble("UIStackViewSpacing", stackView.number("spacing").value_or(0));
  if (stackView.flag("baselineRelativeArrangement", false))
    node.setBool("UIStackViewBaselineRelative", true);
  if (stackView.flag("layoutMarginsRelativeArrangement", false))
    node.setBool("UIStackViewLayoutMarginsRelative", true);
}

}  // namespace xib
