// A phone with UIKit and what it needs, for fuzzers whose inputs become objects.
#pragma once

#include <cstdlib>

#include "simulator/host/TemporaryFolder.h"
#include "simulator/machine/Phone.h"
#include "simulator/runtime/LiveObjects.h"
#include "simulator/standin/Registration.h"

namespace sim {

// The only one of the process; its folder goes with it.
class FuzzPhone {
 public:
  FuzzPhone() {
    registerFoundation();
    registerQuartzCore();
    registerUIKit();
  }
  FuzzPhone(const FuzzPhone&) = delete;
  FuzzPhone& operator=(const FuzzPhone&) = delete;

  static void start() { static FuzzPhone only; }

 private:
  TemporaryFolder root_;
  Phone phone_{root_.path()};
};

inline void require(bool holds) {
  if (!holds) std::abort();
}

inline std::size_t liveObjectCount() {
  std::size_t count = 0;
  for (const auto& live : sim::runtime::liveInstanceCounts()) count += live.count;
  return count;
}

}  // namespace sim
