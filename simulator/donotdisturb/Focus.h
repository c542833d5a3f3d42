// Do Not Disturb itself, which a process of its own keeps.
#pragma once

#include "simulator/machine/Phone.h"

namespace sim {

class Focus {
 public:
  explicit Focus(Phone& phone);
  Focus(const Focus&) = delete;
  Focus& operator=(const Focus&) = delete;

  // That of Phone::current(), made on first use; it survives a restart of the host.
  static Focus& current();

  bool isOn() const { return on_; }
  void setOn(bool on) { on_ = on; }

 private:
  bool on_ = false;
};

}  // namespace sim
