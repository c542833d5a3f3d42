// The system's random numbers are drawn by the phone: whatever depends on them is the same in every
// play.
#include "simulator/foundation/Arc4Random.h"

#include <cstdint>
#include <cstdlib>

#include "simulator/machine/Phone.h"
#include "simulator/standin/Fidelity.h"

namespace {

// SplitMix64: any start gives numbers of every size.
struct RandomNumbers {
  std::uint64_t state = std::uint64_t(sim::Phone::current().clock.uptime());

  std::uint64_t next() {
    state += 0x9e3779b97f4a7c15;
    std::uint64_t mixed = (state ^ (state >> 30)) * 0xbf58476d1ce4e5b9;
    mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111eb;
    return mixed ^ (mixed >> 31);
  }
};

}  // namespace

// Found by its name, before the machine's own.
extern "C" {
[[gnu::visibility("default")]] std::uint32_t arc4random() noexcept {
  return std::uint32_t(sim::Phone::current().state<RandomNumbers>().next() >> 32);
}
[[gnu::visibility("default")]] std::uint32_t arc4random_uniform(std::uint32_t bound) noexcept {
  return std::uint32_t((std::uint64_t(arc4random()) * bound) >> 32);
}
[[gnu::visibility("default")]] void arc4random_buf(void* place, std::size_t size) noexcept {
  for (auto* byte = static_cast<unsigned char*>(place); size > 0; --size)
    *byte++ = static_cast<unsigned char>(arc4random());
}
}

namespace sim {

void recordRandomNumbers() {
  for (const char* name : {"arc4random", "arc4random_uniform", "arc4random_buf"})
    recordFunction("libSystem", name, {Grade::partial, "the same numbers in every play"});
}

}  // namespace sim
