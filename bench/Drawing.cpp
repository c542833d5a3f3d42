// What looking at the phone's screen costs, with the panel's choose-time page on it.
#include <benchmark/benchmark.h>

#include "bench/BootedPhone.h"
#include "objc/Message.h"
#include "objc/Ownership.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/drawing/FlatScene.h"
#include "simulator/drawing/SceneBuilder.h"
#include "simulator/drawing/SvgWriter.h"

namespace {

using objc::Object;
using objc::send;

void showPanel() {
  static bool isShown = false;
  if (std::exchange(isShown, true)) return;
  const objc::AutoreleasePool pool;
  auto& phone = bench::BootedPhone::get().phone;
  const Object window =
      send<Object, "keyWindow">(send<Object, "sharedApplication">(objc_getClass("UIApplication")));
  const Object engine = send<Object, "sharedInstance">(objc_getClass("Dozewell2Manager"));
  const Object panel = send<Object, "dozewell2VC">(engine);
  const Object view = send<Object, "view">(panel);
  send<void, "addSubview:">(send<Object, "view">(send<Object, "rootViewController">(window)), view);
  send<void, "setFrame:">(view, sim::CGRect{{35, 200}, {321, 250}});
  send<void, "showChooseSnoozeTimeView:transitionView:slideAnimated:">(panel, true, Object(),
                                                                       false);
  phone.queue.runUntil(phone.clock.uptime() + sim::nanoseconds(1));
}

void buildScene(benchmark::State& state) {
  showPanel();
  for (auto _ : state) benchmark::DoNotOptimize(sim::screenScene());
}
BENCHMARK(buildScene)->Unit(benchmark::kMicrosecond);

void buildAndCompareScene(benchmark::State& state) {
  showPanel();
  const auto before = sim::flattened(sim::screenScene());
  for (auto _ : state) {
    const auto now = sim::flattened(sim::screenScene());
    benchmark::DoNotOptimize(sim::changesBetween(before, now));
  }
}
BENCHMARK(buildAndCompareScene)->Unit(benchmark::kMicrosecond);

void writeSvg(benchmark::State& state) {
  showPanel();
  const auto scene = sim::screenScene();
  for (auto _ : state) benchmark::DoNotOptimize(sim::svgDocument(scene, sim::namedImage));
}
BENCHMARK(writeSvg)->Unit(benchmark::kMicrosecond);

}  // namespace
