// Timers from start to end, and a whole night with something on the screen.
#include <benchmark/benchmark.h>

#include "bench/BootedPhone.h"
#include "objc/Block.h"
#include "objc/Message.h"

namespace {

objc::Object engine() {
  return objc::send<objc::Object, "sharedInstance">(objc_getClass("Dozewell2Manager"));
}

void advance(sim::Phone& phone, double seconds) {
  phone.queue.runUntil(phone.clock.uptime() + sim::nanoseconds(seconds));
}

// One minute, the fade-out of fifteen seconds and the volume's return.
void timerFromStartToEnd(benchmark::State& state) {
  sim::Phone& phone = bench::BootedPhone::get().phone;
  for (auto _ : state) {
    const objc::AutoreleasePool pool;
    objc::send<void, "startTimerWithMode:andValue:">(engine(), 0L, 60L);
    advance(phone, 80);
  }
}
BENCHMARK(timerFromStartToEnd)->Unit(benchmark::kMicrosecond);

// Eight hours in which a label asks for the time left every second, as the open panel does.
void eightHoursRefreshedEverySecond(benchmark::State& state) {
  sim::Phone& phone = bench::BootedPhone::get().phone;
  for (auto _ : state) {
    const objc::AutoreleasePool pool;
    objc::send<void, "startTimerWithMode:andValue:">(engine(), 0L, 8 * 3600L);
    advance(phone, 8 * 3600 + 20);
  }
}
BENCHMARK(eightHoursRefreshedEverySecond)->Unit(benchmark::kMillisecond);

}  // namespace
