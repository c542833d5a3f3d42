// What is known of a document while it is compiled.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "tools/nibc/nib/Graph.h"
#include "tools/nibc/xib/Element.h"

namespace xib {

// A thing with an id: a proxy, a view or a constraint.
struct Item {
  enum Kind { proxy, view, control, constraint };
  Kind kind;
  nib::Node* node;
  const Item* parent;  // the view that contains it; nullptr outermost
  Position position;

  // True for the item itself, too.
  bool isInside(const Item* ancestor) const;
};

// Read when every id is known, since both may refer to what comes later.
struct UnreadConstraint {
  Element element;
  const Item* item;  // a view owns it
};
struct UnreadConnections {
  Element element;
  const Item* source;
};

struct Layout {
  nib::Graph graph;
  std::map<std::string, Item> items;  // by id
  std::vector<nib::Node*> topLevel, objects, connections, keyValuePairs;
  std::vector<UnreadConstraint> unreadConstraints;
  std::vector<UnreadConnections> unreadConnections;
  std::map<std::string, std::pair<double, double>> imageSizes;  // points
  std::map<std::string, Element> systemColors;
  // Whether colours were converted from the space that the document names. Where they were not,
  // as in old documents, the space's name means nothing.
  bool colorMatched = false;

  // Adds the element's id, and the node to the list of all objects. Throws Error when the id is
  // missing or taken. The item stays where it is.
  const Item* add(Element& element, Item::Kind kind, nib::Node* node, const Item* parent);
  // The item with the id that an attribute gives. Throws Error when there is none.
  const Item& find(Element& element, const char* attribute) const;
};

}  // namespace xib
