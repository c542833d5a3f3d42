// Other devices nearby that play music by themselves: speakers, televisions.
#pragma once

#include <string>
#include <vector>

#include "simulator/machine/Observed.h"
#include "simulator/machine/Phone.h"

namespace sim {

// Its observers are told of every change.
class Endpoints : public Observed {
 public:
  explicit Endpoints(Phone& phone);
  Endpoints(const Endpoints&) = delete;
  Endpoints& operator=(const Endpoints&) = delete;

  // Those of Phone::current(), made on first use. They survive a restart of the host.
  static Endpoints& current();

  // In place of those of before.
  void find(std::vector<std::string> names);
  const std::vector<std::string>& names() const { return names_; }

 private:
  std::vector<std::string> names_;
};

}  // namespace sim
