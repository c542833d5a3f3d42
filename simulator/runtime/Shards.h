// Spreads a table keyed by object over several locks, so that threads seldom meet.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sim::runtime {

template <class Shard>
class Shards {
 public:
  Shard& of(const void* object) { return shards_[indexOf(object)]; }
  auto begin() { return shards_.begin(); }
  auto end() { return shards_.end(); }

 private:
  static constexpr std::size_t shardCount = 16;

  static std::size_t indexOf(const void* object) {
    const auto address = reinterpret_cast<std::uintptr_t>(object);
    // Neighbours on the heap differ in the low bits, but never below the allocator's 16 bytes.
    return ((address >> 4) ^ (address >> 9)) % shardCount;
  }

  std::array<Shard, shardCount> shards_;
};

}  // namespace sim::runtime
