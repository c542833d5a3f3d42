// Other devices nearby that play music by themselves: speakers, televisions.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "simulator/machine/Phone.h"

namespace sim {

class Endpoints {
 public:
  explicit Endpoints(Phone& phone);
  Endpoints(const Endpoints&) = delete;
  Endpoints& operator=(const Endpoints&) = delete;

  // Those of Phone::current(), made on first use. They survive a restart of the host.
  static Endpoints& current();

  // In place of those of before.
  void find(std::vector<std::string> names);
  const std::vector<std::string>& names() const { return names_; }

  // Called after every change, until the observer is forgotten by its number.
  long observe(std::function<void()> observer);
  void forget(long number) { observers_.erase(number); }

 private:
  std::vector<std::string> names_;
  std::map<long, std::function<void()>> observers_;
  long lastObserver_ = 0;
};

}  // namespace sim
