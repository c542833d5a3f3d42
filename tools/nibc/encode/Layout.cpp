#include "tools/nibc/encode/Layout.h"

#include "tools/nibc/nib/Quoting.h"

namespace xib {

bool Item::isInside(const Item* ancestor) const {
  for (const Item* each = this; each != nullptr; each = each->parent)
    if (each == ancestor) return true;
  return false;
}

const Item* Layout::add(Element& element, Item::Kind kind, nib::Node* node, const Item* parent) {
  const std::string id = element.requiredText("id");
  const auto [found, isNew] = items.emplace(id, Item{kind, node, parent, element.position()});
  if (!isNew) {
    const Position other = found->second.position;
    element.failAt("id", "the id " + nib::quoted(id) + " is taken by the element at " +
                             std::to_string(other.line) + ":" + std::to_string(other.column));
  }
  objects.push_back(node);
  return &found->second;
}

const Item& Layout::find(Element& element, const char* attribute) const {
  const std::string id = element.requiredText(attribute);
  const auto found = items.find(id);
  if (found == items.end()) element.failAt(attribute, "nothing has the id " + nib::quoted(id));
  return found->second;
}

}  // namespace xib
