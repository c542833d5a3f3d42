// What the runtime's book-keeping costs: weak references to an object that has none or many
// already, and blocks that nothing is known of.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <vector>

#include "objc/Block.h"
#include "objc/Ownership.h"

namespace {

objc::Strong<objc::Object> makeObject() {
  return objc::adopt(objc::Object(objc_alloc_init(objc_getClass("NSObject"))));
}

// One more is made and ended.
void weakReferenceBeside(benchmark::State& state, std::size_t others) {
  const auto object = makeObject();
  const std::vector<objc::Weak<objc::Object>> kept(others, objc::weak(object.get()));
  for (auto _ : state) benchmark::DoNotOptimize(objc::weak(object.get()));
}

void weakReferenceAlone(benchmark::State& state) {
  weakReferenceBeside(state, 0);
}
BENCHMARK(weakReferenceAlone);

void weakReferenceAmongMany(benchmark::State& state) {
  weakReferenceBeside(state, 10000);
}
BENCHMARK(weakReferenceAmongMany);

void makeAndReleaseBlock(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(objc::block<void()>([&state] { state.SetItemsProcessed(1); }));
}
BENCHMARK(makeAndReleaseBlock);

}  // namespace
