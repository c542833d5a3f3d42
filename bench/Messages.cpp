// What a message through the bridge costs, against a direct call and a C++ virtual call of the
// same work.
#include <benchmark/benchmark.h>

#include <array>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "objc/Class.h"

namespace {

struct Counter : objc::Implementation<Counter> {
  long count;
  long add(long amount) { return count += amount; }
};

struct Adder {
  virtual ~Adder() = default;
  virtual long add(long amount) = 0;
};
struct UpCounter : Adder {
  long count = 0;
  long add(long amount) override { return count += amount; }
};
struct DownCounter : Adder {
  long count = 0;
  long add(long amount) override { return count -= amount; }
};

// Which of the two it is, the compiler must not find out.
std::unique_ptr<Adder> makeAdder(bool up) {
  if (up) return std::make_unique<UpCounter>();
  return std::make_unique<DownCounter>();
}

objc::Object counter() {
  static const Class cls = objc::ClassBuilder<Counter>("BenchCounter", "NSObject")
                               .method<"add:", &Counter::add>()
                               .finish();
  static const auto made = objc::adopt(objc::Object(objc_alloc_init(cls)));
  return made;
}

void directCall(benchmark::State& state) {
  using Add = objc::Wire<long> (*)(id, SEL, long);
  const objc::Object receiver = counter();
  const SEL name = objc::selector<"add:">();
  auto add =
      reinterpret_cast<Add>(class_getMethodImplementation(object_getClass(receiver.get()), name));
  for (auto _ : state) {
    benchmark::DoNotOptimize(add);
    benchmark::DoNotOptimize(add(receiver.get(), name, 1));
  }
}
BENCHMARK(directCall);

void virtualCall(benchmark::State& state) {
  bool up = true;
  benchmark::DoNotOptimize(up);
  const std::unique_ptr<Adder> owner = makeAdder(up);
  Adder* adder = owner.get();
  for (auto _ : state) {
    benchmark::DoNotOptimize(adder);
    benchmark::DoNotOptimize(adder->add(1));
  }
}
BENCHMARK(virtualCall);

void bridgedSend(benchmark::State& state) {
  objc::Object receiver = counter();
  for (auto _ : state) {
    benchmark::DoNotOptimize(receiver);
    benchmark::DoNotOptimize(objc::send<long, "add:">(receiver, 1L));
  }
}
BENCHMARK(bridgedSend);

// One place that sends to objects of four classes in turn, as those that go over views do.
void bridgedSendToFourClasses(benchmark::State& state) {
  std::array<objc::Strong<objc::Object>, 4> receivers;
  for (std::size_t i = 0; i < receivers.size(); ++i) {
    const std::string name = "BenchTurn" + std::to_string(i);
    Class cls = objc_lookUpClass(name.c_str());
    if (cls == nullptr) {
      cls = objc_allocateClassPair(object_getClass(counter().get()), name.c_str(), 0);
      objc_registerClassPair(cls);
    }
    receivers[i] = objc::adopt(objc::Object(objc_alloc_init(cls)));
  }
  std::size_t turn = 0;
  for (auto _ : state)
    benchmark::DoNotOptimize(objc::send<long, "add:">(receivers[turn++ % 4].get(), 1L));
}
BENCHMARK(bridgedSendToFourClasses);

void bridgedSendToNil(benchmark::State& state) {
  objc::Object receiver;
  for (auto _ : state) {
    benchmark::DoNotOptimize(receiver);
    benchmark::DoNotOptimize(objc::send<long, "add:">(receiver, 1L));
  }
}
BENCHMARK(bridgedSendToNil);

// The first message of its name that a class gets: each object is of a class of its own.
void bridgedSendCold(benchmark::State& state) {
  constexpr int classesAtOnce = 1000;
  std::vector<objc::Strong<objc::Object>> fresh;
  static int made = 0;
  for (auto _ : state) {
    if (fresh.empty()) {
      state.PauseTiming();
      for (int i = 0; i < classesAtOnce; ++i) {
        const std::string name = "BenchCold" + std::to_string(made++);
        Class cls = objc_allocateClassPair(object_getClass(counter().get()), name.c_str(), 0);
        objc_registerClassPair(cls);
        fresh.push_back(objc::adopt(objc::Object(objc_alloc_init(cls))));
      }
      state.ResumeTiming();
    }
    benchmark::DoNotOptimize(objc::send<long, "add:">(fresh.back().get(), 1L));
    state.PauseTiming();
    fresh.pop_back();
    state.ResumeTiming();
  }
}
BENCHMARK(bridgedSendCold)->Iterations(20000);

void retainAndRelease(benchmark::State& state) {
  objc::Object receiver = counter();
  benchmark::DoNotOptimize(receiver);
  for (auto _ : state) benchmark::DoNotOptimize(objc::retain(receiver));
}
BENCHMARK(retainAndRelease);

}  // namespace
