#include "tools/nibc/encode/ViewLayout.h"

#include "tools/nibc/nib/Geometry.h"

namespace xib {
namespace {

constexpr Choice autoresizing[] = {{"flexibleMinX", 1},   {"widthSizable", 2},
                                   {"flexibleMaxX", 4},   {"flexibleMinY", 8},
                                   {"heightSizable", 16}, {"flexibleMaxY", 32}};
constexpr int fixedToTopLeft = 36;
constexpr double usualHugging = 250, usualResistance = 750;

double size(Element& rect, const char* attribute) {
  const double value = rect.requiredNumber(attribute);
  if (value < 0) rect.failAt(attribute, "a size is not negative (" + std::string(attribute) + ")");
  return value;
}

std::string priority(Element& element, const char* attribute, double otherwise) {
  const double value = element.number(attribute).value_or(otherwise);
  if (value < 1 || value > 1000 || value != double(int(value)))
    element.failAt(attribute, "a priority is a whole number from 1 to 1000");
  return std::to_string(int(value));
}

// The pair of priorities of both directions, when the source says anything about either.
void encodePriorities(Element& element, nib::Node& node, const char* nibKey, const char* horizontal,
                      const char* vertical, double usual, Layout& layout) {
  if (!element.has(horizontal) && !element.has(vertical)) return;
  node.setObject(nibKey, layout.graph.string("{" + priority(element, horizontal, usual) + ", " +
                                             priority(element, vertical, usual) + "}"));
}

// The constraints of a view get their contents when all views are known.
std::vector<nib::Node*> makeConstraints(Element& element, const Item* item, Layout& layout) {
  std::vector<nib::Node*> made;
  auto constraints = element.child("constraints");
  if (!constraints) return made;
  for (Element& each : constraints->children()) {
    if (each.name() != "constraint")
      each.fail("<" + std::string(each.name()) + "> inside of <constraints> is not supported");
    made.push_back(layout.graph.make("NSLayoutConstraint"));
    const Item* constraint = layout.add(each, Item::constraint, made.back(), item);
    layout.unreadConstraints.push_back({each, constraint});
  }
  constraints->finish();
  return made;
}

void encodeMargins(Element& element, nib::Node& node) {
  auto margins = element.child("edgeInsets", "layoutMargins");
  if (!margins) return;
  node.setData(
      "UIViewLayoutMargins",
      nib::geometry({margins->requiredNumber("top"), margins->requiredNumber("left"),
                     margins->requiredNumber("bottom"), margins->requiredNumber("right")}));
  margins->finish();
}

}  // namespace

void encodeGeometry(Element& element, nib::Node& node) {
  auto frame = element.child("rect", "frame");
  if (!frame) element.fail("<" + std::string(element.name()) + "> has no <rect key=\"frame\">");
  const double x = frame->requiredNumber("x"), y = frame->requiredNumber("y");
  const double width = size(*frame, "width"), height = size(*frame, "height");
  frame->finish();
  node.setData("UIBounds", nib::geometry({0, 0, width, height}));
  node.setData("UICenter", nib::geometry({x + width / 2, y + height / 2}));
}

void encodeAutoresizing(Element& element, nib::Node& node) {
  int mask = fixedToTopLeft;
  if (auto child = element.child("autoresizingMask", "autoresizingMask")) {
    mask = 0;
    for (const Choice& each : autoresizing)
      if (child->flag(each.name, false)) mask |= each.value;
    child->finish();
  }
  if (mask != 0) node.setInteger("UIAutoresizingMask", mask);
}

void encodeLayoutKeys(Element& element, const Item* item, Layout& layout) {
  nib::Node& node = *item->node;
  if (!element.flag("translatesAutoresizingMaskIntoConstraints", true))
    node.setBool("UIViewDoesNotTranslateAutoresizingMaskIntoConstraints", true);
  const auto constraints = makeConstraints(element, item, layout);
  if (!constraints.empty())
    node.setObject("UIViewAutolayoutConstraints",
                   layout.graph.array(constraints, "NSMutableArray"));
  encodeMargins(element, node);
  encodePriorities(element, node, "UIViewContentHuggingPriority", "horizontalHuggingPriority",
                   "verticalHuggingPriority", usualHugging, layout);
  encodePriorities(element, node, "UIViewContentCompressionResistancePriority",
                   "horizontalCompressionResistancePriority",
                   "verticalCompressionResistancePriority", usualResistance, layout);
  if (!element.flag("insetsLayoutMarginsFromSafeArea", true))
    node.setInteger("UIViewInsetsLayoutMarginsFromSafeArea", 0);
}

}  // namespace xib
