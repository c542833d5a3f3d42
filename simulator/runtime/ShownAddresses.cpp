#include "simulator/runtime/ShownAddresses.h"

#include <atomic>
#include <mutex>
#include <unordered_map>

#include "simulator/runtime/Instances.h"
#include "simulator/runtime/LiveObjects.h"

namespace sim::runtime {
namespace {

// As on a phone, whose small objects lie there, each of them at a multiple of 16.
constexpr std::uintptr_t firstAddress = 0x280000000;
constexpr std::uintptr_t distance = 0x40;
// Programs whose place is random lie between: the rest are numbers, nil for one.
constexpr std::uintptr_t lowestPlace = std::uintptr_t(1) << 32;
constexpr std::uintptr_t endOfPlaces = std::uintptr_t(1) << 47;

struct Shown {
  std::uintptr_t address = 0;
  bool hasEnded = false;  // the next thing in this place is another one
};

struct AddressTable {
  std::mutex lock;
  std::unordered_map<const void*, Shown> all;  // by the place in this process
  std::atomic<std::size_t> count = 0;          // of addresses given out
};

AddressTable& shownTable() {
  static auto* instance = new AddressTable;  // never destroyed: objects are freed until the end
  return *instance;
}

std::uintptr_t knownOrNext(const void* pointer) {
  const std::lock_guard guard(shownTable().lock);
  Shown& shown = shownTable().all[pointer];
  if (shown.address == 0 || shown.hasEnded)
    shown = {firstAddress + distance * ++shownTable().count, false};
  return shown.address;
}

}  // namespace

std::uintptr_t shownAddress(id object) {
  if (object == nullptr) return 0;
  if (kindOf(object) != ObjectKind::instance) return knownOrNext(object);
  // What was known of its place before it was shown itself is of something else.
  constexpr std::uint32_t shown = ObjectTrace::shownAddress;
  if ((headerOf(object).traces.load(std::memory_order_acquire) & shown) == 0)
    endShownAddress(object);
  setTrace(object, ObjectTrace::shownAddress);
  return knownOrNext(object);
}

std::uintptr_t shownAddress(const void* pointer) {
  const auto place = reinterpret_cast<std::uintptr_t>(pointer);
  if (place < lowestPlace || place >= endOfPlaces) return place;
  if (isLiveInstance(pointer)) return shownAddress(static_cast<id>(const_cast<void*>(pointer)));
  return knownOrNext(pointer);
}

std::uintptr_t lastShownAddress(const void* pointer) {
  {
    const std::lock_guard guard(shownTable().lock);
    const auto found = shownTable().all.find(pointer);
    if (found != shownTable().all.end()) return found->second.address;
  }
  return knownOrNext(pointer);
}

std::size_t shownAddressCount() {
  return shownTable().count.load(std::memory_order_relaxed);
}

void endShownAddress(const void* pointer) {
  if (shownAddressCount() == 0) return;
  const std::lock_guard guard(shownTable().lock);
  const auto found = shownTable().all.find(pointer);
  if (found != shownTable().all.end()) found->second.hasEnded = true;
}

}  // namespace sim::runtime
