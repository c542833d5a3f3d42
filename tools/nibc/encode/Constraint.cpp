#include "tools/nibc/encode/Constraint.h"

#include <charconv>
#include <cmath>

#include "tools/nibc/nib/Quoting.h"

namespace xib {
namespace {

constexpr Choice attributes[] = {{"left", 1},
                                 {"right", 2},
                                 {"top", 3},
                                 {"bottom", 4},
                                 {"leading", 5},
                                 {"trailing", 6},
                                 {"width", 7},
                                 {"height", 8},
                                 {"centerX", 9},
                                 {"centerY", 10},
                                 {"baseline", 11},
                                 {"lastBaseline", 11},
                                 {"firstBaseline", 12},
                                 {"leftMargin", 13},
                                 {"rightMargin", 14},
                                 {"topMargin", 15},
                                 {"bottomMargin", 16},
                                 {"leadingMargin", 17},
                                 {"trailingMargin", 18},
                                 {"centerXWithinMargins", 19},
                                 {"centerYWithinMargins", 20}};
constexpr Choice relations[] = {{"lessThanOrEqual", -1}, {"equal", 0}, {"greaterThanOrEqual", 1}};
constexpr int required = 1000;

// Only attributes of the same family can be compared; the absolute sides and those that follow
// the direction of writing are two families.
char family(int attribute) {
  constexpr const char* families = " XXYYLLSSCYYYXXYYLLCY";
  return families[attribute];
}

bool areComparable(int first, int second) {
  const char one = family(first), other = family(second);
  if (one == other) return true;
  // The horizontal centre goes with both kinds of sides.
  const auto isHorizontal = [](char each) { return each == 'X' || each == 'L'; };
  return (one == 'C' && isHorizontal(other)) || (other == 'C' && isHorizontal(one));
}

double numberFrom(Element& element, const std::string& text) {
  double number = 0;
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end || !std::isfinite(number))
    element.failAt("multiplier", nib::quoted(text) + " is no number (multiplier)");
  return number;
}

// "0.5", or a ratio such as "16:9".
double multiplier(Element& element) {
  const std::string text = element.text("multiplier").value_or("1");
  const std::size_t colon = text.find(':');
  double value = numberFrom(element, text.substr(0, colon));
  if (colon != std::string::npos) value /= numberFrom(element, text.substr(colon + 1));
  if (value == 0 || !std::isfinite(value))
    element.failAt("multiplier", "a multiplier is neither 0 nor infinite");
  return value;
}

class ConstraintEncoder {
 public:
  ConstraintEncoder(UnreadConstraint constraint, Layout& layout)
      : element_(std::move(constraint.element)),
        owner_(constraint.item->parent),
        node_(*constraint.item->node),
        layout_(layout) {}

  void encode() {
    const int attribute = encodeItem("firstItem", "firstAttribute", "NSFirst");
    if (const int relation = element_.choice("relation", relations).value_or(0))
      node_.setInteger("NSRelation", relation);
    const double factor = multiplier(element_);
    if (factor != 1) node_.setDouble("NSMultiplier", factor);
    encodeSecond(attribute);
    const double constant = element_.number("constant").value_or(0);
    if (constant != 0) node_.setDouble("NSConstantV2", constant);
    node_.setBool("NSShouldBeArchived", true);
    if (const auto identifier = element_.text("identifier"))
      node_.setObject("NSLayoutIdentifier", layout_.graph.string(*identifier));
    encodePriority();
    if (constant != 0) node_.setDouble("NSConstant", constant);
    element_.ignore({"userLabel"});
    element_.finish();
  }

 private:
  // The view that owns the constraint is meant where the source names none.
  const Item& item(const char* name) {
    if (!element_.has(name)) return *owner_;
    const Item& found = layout_.find(element_, name);
    if (found.kind != Item::view && found.kind != Item::control)
      element_.failAt(name, "only views can be constrained (" + std::string(name) + ")");
    if (!found.isInside(owner_))
      element_.failAt(name, "the view is not inside the one that owns the constraint (" +
                                std::string(name) + ")");
    return found;
  }

  int encodeItem(const char* itemName, const char* attributeName, const std::string& prefix) {
    node_.setObject((prefix + "Item").c_str(), item(itemName).node);
    element_.requiredText(attributeName);
    const int attribute = *element_.choice(attributeName, attributes);
    node_.setInteger((prefix + "AttributeV2").c_str(), attribute);
    node_.setInteger((prefix + "Attribute").c_str(), attribute);
    return attribute;
  }

  void encodeSecond(int firstAttribute) {
    const bool isSize = family(firstAttribute) == 'S';
    if (!element_.has("secondAttribute")) {
      if (!isSize || element_.has("secondItem"))
        element_.fail("only a width or a height can do without \"secondAttribute\"");
      return;
    }
    const int second = encodeItem("secondItem", "secondAttribute", "NSSecond");
    if (!areComparable(firstAttribute, second))
      element_.failAt("secondAttribute", "\"firstAttribute\" cannot be compared with it");
  }

  void encodePriority() {
    const auto priority = element_.integer("priority").value_or(required);
    if (priority < 1 || priority > required)
      element_.failAt("priority", "a priority is a whole number from 1 to 1000");
    if (priority != required) node_.setInteger("NSPriority", priority);
  }

  Element element_;
  const Item* owner_;
  nib::Node& node_;
  Layout& layout_;
};

}  // namespace

void encodeConstraint(UnreadConstraint constraint, Layout& layout) {
  ConstraintEncoder(std::move(constraint), layout).encode();
}

}  // namespace xib
