// Objects that belong to one phone, one of each type, for whoever keeps something about it.
#pragma once

#include <cstddef>
#include <memory>
#include <type_traits>
#include <vector>

namespace sim {

class Phone;

// What a framework keeps must end with the phone, not with the process, and the phone cannot know
// the frameworks: it owns their objects without their types.
class StateSlots {
 public:
  StateSlots() = default;
  ~StateSlots() { clear(); }
  StateSlots(const StateSlots&) = delete;
  StateSlots& operator=(const StateSlots&) = delete;

  // Made on first use, of `phone` where its constructor takes one.
  template <class T>
  T& get(Phone& phone) {
    const std::size_t index = indexOf<T>();
    if (index >= slots_.size() || slots_[index] == nullptr) {
      auto made = make<T>(phone);
      if (index >= slots_.size()) slots_.resize(index + 1);
      slots_[index] = std::move(made);
      order_.push_back(index);
    }
    return *static_cast<T*>(slots_[index].get());
  }

  // The last that was made goes first: to its end it may use those before it.
  void clear() {
    while (!order_.empty()) {
      const std::size_t last = order_.back();
      order_.pop_back();
      slots_[last].reset();
    }
  }

 private:
  template <class T>
  static std::shared_ptr<T> make(Phone& phone) {
    if constexpr (std::is_constructible_v<T, Phone&>)
      return std::make_shared<T>(phone);
    else
      return std::make_shared<T>();
  }

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
