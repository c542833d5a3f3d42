// Gives the objects of a graph, and the names in it, their numbers.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tools/nibc/nib/Graph.h"

namespace nib {

class Flattening {
 public:
  explicit Flattening(const Node* root);

  const Archive& archive() const { return archive_; }

 private:
  struct ContentOf;

  std::uint32_t objectIndex(const Node* node);
  std::uint32_t keyIndex(const std::string& key);
  std::uint32_t classIndex(const std::string& cls);

  Archive archive_;
  std::map<const Node*, std::uint32_t> objects_;
  std::map<std::string, std::uint32_t> keys_;
  std::map<std::string, std::uint32_t> classes_;
  std::vector<const Node*> queue_;  // of the numbered objects
};

}  // namespace nib
