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
// The system maps nothing below this: it is some number, nil for one.
constexpr std::uintptr_t noAddress = 0x10000;

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

// What is known of that place; what has ended counts if the caller wants what was there.
std::uintptr_t known(const void* pointer, bool alsoEnded) {
  const std::lock_guard guard(shownTable().lock);
  const auto found = shownTable().all.find(pointer);
  if (found == shownTable().all.end() || (found->second.hasEnded && !alsoEnded)) return 0;
  return found->second.address;
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
  if (kindOf(object) == ObjectKind::instance) setTrace(object, ObjectTrace::shownAddress);
  return knownOrNext(object);
}

std::uintptr_t shownAddress(const void* pointer) {
  const auto place = reinterpret_cast<std::uintptr_t>(pointer);
  if (place < noAddress) return place;
  if (const std::uintptr_t address = known(pointer, false)) return address;
  if (isLiveInstance(pointer)) return shownAddress(static_cast<id>(const_cast<void*>(pointer)));
  if (const std::uintptr_t address = known(pointer, true)) return address;
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
