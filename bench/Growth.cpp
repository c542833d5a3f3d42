// What something costs against how much of it there is: growth.py prints the measured exponents.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "bench/BootedPhone.h"
#include "objc/Message.h"
#include "objc/Ownership.h"
#include "simulator/cephei/PreferencesDomain.h"
#include "simulator/foundation/Values.h"
#include "simulator/script/words/Script.h"

namespace {

using objc::Object;

std::size_t sizeOf(const benchmark::State& state) {
  return std::size_t(state.range(0));
}

// All in the order in which they were added: the first ones stand at the front of the queue, the
// last ones at its end.
void growthOfCancelledTimers(benchmark::State& state) {
  sim::MainQueue& queue = bench::BootedPhone::get().phone.queue;
  const sim::Nanoseconds later = sim::deadline(0, sim::latestUptime);
  std::vector<sim::MainQueue::Ticket> tickets(sizeOf(state));
  for (auto _ : state) {
    for (auto& ticket : tickets) ticket = queue.add(later, [] {});
    for (auto ticket = tickets.rbegin(); ticket != tickets.rend(); ++ticket) queue.cancel(*ticket);
  }
}

void growthOfPreferenceKeys(benchmark::State& state) {
  bench::BootedPhone::get();
  const objc::AutoreleasePool pool;
  sim::PreferencesDomain domain("com.example.growth");
  for (std::size_t key = 0; key < sizeOf(state); ++key)
    domain.set("key" + std::to_string(key), sim::number(long(key)));
  for (auto _ : state) {
    const objc::AutoreleasePool each;
    domain.save();
    domain.reload();
  }
}

void growthOfWeakReferences(benchmark::State& state) {
  bench::BootedPhone::get();
  std::vector<id> locations(sizeOf(state));
  for (auto _ : state) {
    const auto object = objc::adopt(objc::send<Object, "new">(objc_getClass("NSObject")));
    for (id& location : locations) objc_initWeak(&location, object.get().get());
    for (id& location : locations) objc_destroyWeak(&location);
  }
}

void growthOfAPlaylistsLine(benchmark::State& state) {
  std::string line = "playlist";
  for (std::size_t song = 0; song < sizeOf(state); ++song) line += " \"A song\" 180";
  for (auto _ : state) benchmark::DoNotOptimize(sim::parseScriptLine(line, 1));
}

void growthOfAScript(benchmark::State& state) {
  std::string script;
  for (std::size_t line = 0; line < sizeOf(state); ++line) script += "advance 10s  # a while\n";
  for (auto _ : state) benchmark::DoNotOptimize(sim::parseScript(script));
}

// Four times as much at each step.
void sizes(benchmark::internal::Benchmark* growth) {
  growth->RangeMultiplier(4)->Range(1024, 65536)->Unit(benchmark::kMicrosecond);
}

BENCHMARK(growthOfCancelledTimers)->Apply(sizes);
BENCHMARK(growthOfPreferenceKeys)->Apply(sizes);
BENCHMARK(growthOfWeakReferences)->Apply(sizes);
BENCHMARK(growthOfAPlaylistsLine)->Apply(sizes);
BENCHMARK(growthOfAScript)->Apply(sizes);

}  // namespace
