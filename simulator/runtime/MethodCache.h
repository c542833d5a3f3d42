// The table from selector to implementation that objc_msgSend probes without a lock.
//
// Entries are never removed: when an implementation changes, the entries that hold the old one are
// overwritten in place, in the class and in every subclass that inherits it. So there is no
// moment at which another thread could see a stale table, and nothing to reclaim but outgrown
// tables.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>

#include "objc/runtime.h"
#include "simulator/runtime/AssemblyOffsets.h"

namespace sim::runtime {

struct CacheBucket {
  std::atomic<SEL> selector;  // written once, after the implementation; null: empty
  std::atomic<IMP> implementation;
};

struct MethodCache {
  std::uint64_t mask;  // of byte offsets: (number of buckets - 1) * sizeof(CacheBucket)
  std::uint64_t used;  // buckets; at least one always stays empty and ends every probe
  CacheBucket firstBucket;
};

static_assert(offsetof(MethodCache, mask) == CACHE_MASK_OFFSET);
static_assert(offsetof(MethodCache, firstBucket) == CACHE_BUCKETS_OFFSET);
static_assert(offsetof(CacheBucket, selector) == BUCKET_SELECTOR_OFFSET);
static_assert(offsetof(CacheBucket, implementation) == BUCKET_IMPLEMENTATION_OFFSET);
static_assert(sizeof(CacheBucket) == BUCKET_SIZE);

// What every class starts with; shared and never written.
extern MethodCache emptyMethodCache;

// nullptr when the selector was not sent to the class yet. Needs no lock.
IMP cachedImplementation(Class cls, SEL selector);

// The following are called with runtimeLock() held.
void fillCache(Class cls, SEL selector, IMP implementation);
void refreshCaches(Class cls, SEL selector, IMP implementation);  // and inheriting subclasses
void freeCaches(Class cls);

}  // namespace sim::runtime
