#include "tools/nibc/nib/Graph.h"

#include "tools/nibc/nib/Flattening.h"

namespace nib {
namespace {

constexpr const char* elementKey = "UINibEncoderEmptyKey";

Node* beginCollection(Node* collection) {
  collection->setBool("NSInlinedValue", true);  // must be the first value
  return collection;
}

}  // namespace

Node* Graph::make(std::string cls) {
  return &nodes_.emplace_back(Node{std::move(cls), {}});
}

Node* Graph::string(const std::string& text) {
  Node*& known = strings_[text];
  if (known == nullptr) {
    known = make("NSString");
    known->setData("NS.bytes", text);
  }
  return known;
}

Node* Graph::integerNumber(std::int64_t value) {
  Node*& known = numbers_[value];
  if (known == nullptr) {
    known = make("NSNumber");
    known->setInteger("NS.intval", value);
  }
  return known;
}

Node* Graph::doubleNumber(double value) {
  Node* number = make("NSNumber");
  number->setDouble("NS.dblval", value);
  return number;
}

Node* Graph::boolNumber(bool value) {
  Node* number = make("NSNumber");
  number->setBool("NS.BOOLval", value);
  return number;
}

Node* Graph::array(const std::vector<Node*>& elements, const char* cls) {
  const bool shared = elements.empty() && std::string_view(cls) == "NSArray";
  if (shared && emptyArray_ != nullptr) return emptyArray_;
  Node* made = beginCollection(make(cls));
  for (Node* each : elements) made->setObject(elementKey, each);
  if (shared) emptyArray_ = made;
  return made;
}

Node* Graph::dictionary(const std::vector<std::pair<Node*, Node*>>& entries) {
  Node* made = beginCollection(make("NSMutableDictionary"));
  for (const auto& [key, value] : entries) {
    made->setObject(elementKey, key);
    made->setObject(elementKey, value);
  }
  return made;
}

Archive Graph::archive(const Node* root) {
  return Flattening(root).archive();
}

}  // namespace nib
