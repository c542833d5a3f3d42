// A phone with the extension loaded and launched: what the benchmarks of whole nights run on.
#pragma once

#include "simulator/phone/Host.h"
#include "simulator/phone/Phone.h"
#include "simulator/phone/TemporaryFolder.h"

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
