// A phone with the extension loaded and launched: what the benchmarks of whole nights run on.
#pragma once

#include "simulator/host/TemporaryFolder.h"
#include "simulator/launch/Host.h"
#include "simulator/machine/Phone.h"

namespace bench {

// Made on first use; there is one phone in a process.
struct BootedPhone {
  sim::TemporaryFolder root;
  sim::Phone phone;
  sim::Host host;

  static BootedPhone& get();

 private:
  BootedPhone();
};

}  // namespace bench
