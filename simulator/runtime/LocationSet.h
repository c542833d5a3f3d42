// The weak references to one object.
#pragma once

#include <algorithm>
#include <cstddef>
#include <unordered_set>
#include <vector>

#include "objc/runtime.h"

namespace sim::runtime {

// Most objects have one or two, which a short list holds in one allocation; a delegate of many has
// thousands, which no list must be searched for.
class LocationSet {
 public:
  void add(id* location) {
    if (!many_.empty() || few_.size() == listLimit) {
      many_.insert(few_.begin(), few_.end());
      few_.clear();
      many_.insert(location);
    } else {
      few_.push_back(location);
    }
  }

  void remove(id* location) {
    many_.erase(location);
    if (const auto found = std::find(few_.begin(), few_.end(), location); found != few_.end()) {
      *found = few_.back();
      few_.pop_back();
    }
  }

  bool empty() const { return few_.empty() && many_.empty(); }

  template <class Visit>
  void forEach(Visit visit) const {
    std::for_each(few_.begin(), few_.end(), visit);
    std::for_each(many_.begin(), many_.end(), visit);
  }

 private:
  static constexpr std::size_t listLimit = 8;

  std::vector<id*> few_;  // empty as soon as there are many
  std::unordered_set<id*> many_;
};

}  // namespace sim::runtime
