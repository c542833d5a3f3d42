// A phone with UIKit and what it needs, for fuzzers whose inputs become objects.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

#include "simulator/Frameworks.h"
#include "simulator/phone/Phone.h"
#include "simulator/runtime/LiveObjects.h"

namespace sim {

inline std::filesystem::path temporaryRoot() {
  std::string name = (std::filesystem::temp_directory_path() / "fuzz-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) std::abort();
  return name;
}

// The only one of the process; its folder goes with it.
class FuzzPhone {
 public:
  FuzzPhone() : root_(temporaryRoot()), phone_(root_) {
    registerFoundation();
    registerQuartzCore();
    registerUIKit();
  }
  ~FuzzPhone() { std::filesystem::remove_all(root_); }
  FuzzPhone(const FuzzPhone&) = delete;
  FuzzPhone& operator=(const FuzzPhone&) = delete;

  static void start() { static FuzzPhone only; }

 private:
  std::filesystem::path root_;
  Phone phone_;
};

inline void require(bool holds) {
  if (!holds) std::abort();
}

inline std::size_t liveObjectCount() {
  std::size_t count = 0;
  for (const auto& live : simulator::runtime::liveInstanceCounts()) count += live.count;
  return count;
}

}  // namespace sim
