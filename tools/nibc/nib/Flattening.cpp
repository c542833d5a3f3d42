#include "tools/nibc/nib/Flattening.h"

#include <cstdint>

namespace nib {
namespace {

// The widths that Interface Builder's compiler chooses: negative numbers get the widest.
Integer narrowest(std::int64_t value) {
  if (value < 0 || value > INT32_MAX) return {value, 8};
  if (value <= INT8_MAX) return {value, 1};
  return {value, value <= INT16_MAX ? 2U : 4U};
}

}  // namespace

struct Flattening::ContentOf {
  Flattening& flattening;

  decltype(Value::content) operator()(std::int64_t value) const { return narrowest(value); }
  decltype(Value::content) operator()(Node* node) const {
    if (node == nullptr) return Nil();
    return Reference{flattening.objectIndex(node)};
  }
  template <class Same>
  decltype(Value::content) operator()(const Same& value) const {
    return value;
  }
};

// Objects are numbered as they are first met, breadth first, so that deep trees need no stack.
Flattening::Flattening(const Node* root) {
  objectIndex(root);
  for (std::size_t next = 0; next < queue_.size(); ++next) {
    const Node& node = *queue_[next];
    archive_.objects.push_back({classIndex(node.cls), std::uint32_t(archive_.values.size()),
                                std::uint32_t(node.values.size())});
    for (const auto& [key, content] : node.values)
      archive_.values.push_back({keyIndex(key), std::visit(ContentOf{*this}, content)});
  }
}

std::uint32_t Flattening::objectIndex(const Node* node) {
  const auto [found, isNew] = objects_.emplace(node, std::uint32_t(queue_.size()));
  if (isNew) queue_.push_back(node);
  return found->second;
}

std::uint32_t Flattening::keyIndex(const std::string& key) {
  const auto [found, isNew] = keys_.emplace(key, std::uint32_t(archive_.keys.size()));
  if (isNew) archive_.keys.push_back(key);
  return found->second;
}

std::uint32_t Flattening::classIndex(const std::string& cls) {
  const auto [found, isNew] = classes_.emplace(cls, std::uint32_t(archive_.classes.size()));
  if (isNew) archive_.classes.push_back({cls, {}});
  return found->second;
}

}  // namespace nib
