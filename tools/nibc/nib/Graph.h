// Objects that refer to each other, on their way into a file.
#pragma once

#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "tools/nibc/nib/Archive.h"

namespace nib {

// An object. The order of its values is that of the file.
struct Node {
  using Content = std::variant<std::int64_t, bool, float, double, Data, Nil, Node*>;

  std::string cls;
  std::vector<std::pair<std::string, Content>> values;

  // Spelt by type, since a literal would convert to any of them.
  void setInteger(const char* key, std::int64_t value) { values.emplace_back(key, value); }
  void setBool(const char* key, bool value) { values.emplace_back(key, value); }
  void setFloat(const char* key, float value) { values.emplace_back(key, value); }
  void setDouble(const char* key, double value) { values.emplace_back(key, value); }
  void setData(const char* key, Data value) { values.emplace_back(key, std::move(value)); }
  void setNil(const char* key) { values.emplace_back(key, Nil()); }
  void setObject(const char* key, Node* object) { values.emplace_back(key, object); }
};

class Graph {
 public:
  // Nodes stay where they are as long as the graph lives.
  Node* make(std::string cls);

  // One object for all equal texts, and one for all equal integers.
  Node* string(const std::string& text);
  Node* integerNumber(std::int64_t value);
  Node* doubleNumber(double value);
  Node* boolNumber(bool value);

  // NSArray, NSMutableArray; all empty NSArrays are one object.
  Node* array(const std::vector<Node*>& elements, const char* cls = "NSArray");
  Node* dictionary(const std::vector<std::pair<Node*, Node*>>& entries);

  // Every object that can be reached from `root`, which becomes the first.
  static Archive archive(const Node* root);

 private:
  std::deque<Node> nodes_;
  std::map<std::string, Node*> strings_;
  std::map<std::int64_t, Node*> numbers_;
  Node* emptyArray_ = nullptr;
};

}  // namespace nib
