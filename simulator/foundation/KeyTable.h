// The hash table of NSDictionary and NSSet: finds by -hash and -isEqual:, walks in the order of
// insertion, so that a simulated phone does the same thing every time.
#pragma once

#include <cstddef>
#include <list>
#include <unordered_map>
#include <utility>

#include "objc/Message.h"
#include "objc/Ownership.h"

namespace sim {

struct KeyEntry {
  objc::Strong<objc::Object> key;
  objc::Strong<objc::Object> value;  // empty in sets
};

class KeyTable {
 public:
  KeyTable() = default;
  KeyTable(const KeyTable& other) {
    for (const KeyEntry& entry : other.entries_) put(entry.key, entry.value);
  }
  KeyTable(KeyTable&& other) noexcept { swap(other); }
  KeyTable& operator=(KeyTable other) noexcept {
    swap(other);
    return *this;
  }

  std::size_t size() const { return entries_.size(); }
  auto begin() const { return entries_.begin(); }
  auto end() const { return entries_.end(); }

  const KeyEntry* find(objc::Object key) const {
    if (!key) return nullptr;
    const auto found = index_.find(key);
    return found == index_.end() ? nullptr : &*found->second;
  }

  // Shares both. A key that is in the table stays, and gets the new value.
  void put(objc::Object key, objc::Object value) {
    const auto found = index_.find(key);
    if (found != index_.end()) {
      found->second->value = objc::retain(value);
      return;
    }
    entries_.push_back({objc::retain(key), objc::retain(value)});
    index_.emplace(key, std::prev(entries_.end()));
  }

  bool remove(objc::Object key) {
    const auto found = index_.find(key);
    if (found == index_.end()) return false;
    const auto entry = found->second;
    index_.erase(found);
    // Out of the table first: its release may run code that looks here.
    std::list<KeyEntry> removed;
    removed.splice(removed.begin(), entries_, entry);
    return true;
  }

  void clear() {
    index_.clear();
    std::list<KeyEntry> removed;
    removed.swap(entries_);
  }

 private:
  void swap(KeyTable& other) noexcept {
    entries_.swap(other.entries_);
    index_.swap(other.index_);
  }

  struct Hash {
    std::size_t operator()(objc::Object key) const {
      return objc::send<unsigned long, "hash">(key);
    }
  };
  struct Equal {
    bool operator()(objc::Object left, objc::Object right) const {
      return left == right || objc::send<bool, "isEqual:">(left, right);
    }
  };

  std::list<KeyEntry> entries_;
  std::unordered_map<objc::Object, std::list<KeyEntry>::iterator, Hash, Equal> index_;
};

}  // namespace sim
