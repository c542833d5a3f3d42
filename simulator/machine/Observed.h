// What tells others of its changes.
#pragma once

#include <functional>
#include <map>
#include <utility>

namespace sim {

class Observed {
 public:
  // The observer is called after each change until it is forgotten by its number, which is not 0.
  long observe(std::function<void()> observer) {
    observers_.emplace(++lastObserver_, std::move(observer));
    return lastObserver_;
  }
  void forget(long number) { observers_.erase(number); }

 protected:
  void tellObservers() const {
    const auto now = observers_;  // one of them may forget another
    for (const auto& [number, observer] : now)
      if (observers_.contains(number)) observer();
  }

 private:
  std::map<long, std::function<void()>> observers_;
  long lastObserver_ = 0;
};

}  // namespace sim
