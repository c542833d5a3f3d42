#include "simulator/runtime/MethodCache.h"

#include <cstdlib>
#include <new>

#include "simulator/runtime/Class.h"

namespace sim::runtime {

constinit MethodCache emptyMethodCache{};

namespace {

constexpr std::size_t firstCapacity = 8;  // buckets

std::size_t capacity(const MethodCache& cache) {
  return cache.mask / BUCKET_SIZE + 1;
}

CacheBucket& bucketAt(MethodCache& cache, std::uint64_t offset) {
  return *reinterpret_cast<CacheBucket*>(reinterpret_cast<char*>(&cache.firstBucket) + offset);
}

// The bucket of the selector or the empty one where it belongs.
CacheBucket& probe(MethodCache& cache, SEL selector) {
  std::uint64_t offset = reinterpret_cast<std::uintptr_t>(selector) & cache.mask;
  for (;;) {
    CacheBucket& bucket = bucketAt(cache, offset);
    const SEL found = bucket.selector.load(std::memory_order_acquire);
    if (found == selector || found == nullptr) return bucket;
    offset = (offset + BUCKET_SIZE) & cache.mask;
  }
}

void insert(MethodCache& cache, SEL selector, IMP implementation) {
  CacheBucket& bucket = probe(cache, selector);
  if (bucket.selector.load(std::memory_order_relaxed) == nullptr) ++cache.used;
  bucket.implementation.store(implementation, std::memory_order_release);
  // Last: a reader that sees the selector sees its implementation.
  bucket.selector.store(selector, std::memory_order_release);
}

MethodCache* makeCache(std::size_t buckets) {
  const std::size_t bytes = CACHE_BUCKETS_OFFSET + buckets * BUCKET_SIZE;
  void* memory = std::calloc(1, bytes);
  if (memory == nullptr) throw std::bad_alloc();
  auto* cache = new (memory) MethodCache{};
  cache->mask = (buckets - 1) * BUCKET_SIZE;
  return cache;
}

void grow(Class cls, MethodCache& old) {
  const bool first = &old == &emptyMethodCache;
  MethodCache* larger = makeCache(first ? firstCapacity : capacity(old) * 2);
  for (std::uint64_t offset = 0; offset <= old.mask; offset += BUCKET_SIZE) {
    const CacheBucket& bucket = bucketAt(old, offset);
    if (const SEL selector = bucket.selector.load(std::memory_order_relaxed))
      insert(*larger, selector, bucket.implementation.load(std::memory_order_relaxed));
  }
  cls->cache.store(larger, std::memory_order_release);
  if (!first) cls->data->outgrownCaches.push_back(&old);
}

}  // namespace

IMP cachedImplementation(Class cls, SEL selector) {
  if (selector == nullptr) return nullptr;
  const CacheBucket& bucket = probe(*cls->cache.load(std::memory_order_acquire), selector);
  return bucket.selector.load(std::memory_order_acquire) == selector
             ? bucket.implementation.load(std::memory_order_acquire)
             : nullptr;
}

void fillCache(Class cls, SEL selector, IMP implementation) {
  MethodCache* cache = cls->cache.load(std::memory_order_relaxed);
  if (cache == &emptyMethodCache || (cache->used + 1) * 4 > capacity(*cache) * 3) {
    grow(cls, *cache);
    cache = cls->cache.load(std::memory_order_relaxed);
  }
  insert(*cache, selector, implementation);
}

void refreshCaches(Class cls, SEL selector, IMP implementation) {
  CacheBucket& bucket = probe(*cls->cache.load(std::memory_order_relaxed), selector);
  if (bucket.selector.load(std::memory_order_relaxed) == selector)
    bucket.implementation.store(implementation, std::memory_order_release);
  for (const Class subclass : cls->data->subclasses)
    if (!subclass->data->methodsBySelector.contains(selector))
      refreshCaches(subclass, selector, implementation);
}

void freeCaches(Class cls) {
  MethodCache* cache = cls->cache.exchange(&emptyMethodCache);
  if (cache != &emptyMethodCache) std::free(cache);
  for (MethodCache* outgrown : cls->data->outgrownCaches) std::free(outgrown);
  cls->data->outgrownCaches.clear();
}

}  // namespace sim::runtime
