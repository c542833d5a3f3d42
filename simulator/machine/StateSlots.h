// Objects that belong to one phone, one of each type, for whoever keeps something about it.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace sim {

// What a framework keeps must end with the phone, not with the process, and the phone cannot know
// the frameworks: it owns their objects without their types.
class StateSlots {
 public:
  StateSlots() = default;
  ~StateSlots() {
    // The later may use the earlier to its end.
    while (!order_.empty()) {
      slots_[order_.back()].reset();
      order_.pop_back();
    }
  }
  StateSlots(const StateSlots&) = delete;
  StateSlots& operator=(const StateSlots&) = delete;

  // Made on first use.
  template <class T>
  T& get() {
    const std::size_t index = indexOf<T>();
    if (index >= slots_.size() || slots_[index] == nullptr) {
      auto made = std::make_shared<T>();
      if (index >= slots_.size()) slots_.resize(index + 1);
      slots_[index] = std::move(made);
      order_.push_back(index);
    }
    return *static_cast<T*>(slots_[index].get());
  }

 private:
  template <class T>
  static std::size_t indexOf() {
    static const std::size_t index = types_++;
    return index;
  }

  inline static std::size_t types_ = 0;
  std::vector<std::shared_ptr<void>> slots_;  // by the types' indices; null: not used yet
  std::vector<std::size_t> order_;            // in which they were made
};

}  // namespace sim
