// Auto Layout: a pass over the panel's pages, as a change of one constraint costs it, and one that
// nothing has to be done for.
#include <benchmark/benchmark.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "bench/BootedPhone.h"
#include "objc/Message.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/foundation/NSData.h"
#include "simulator/foundation/Values.h"

namespace {

using objc::Object;

std::string contentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error(path + " cannot be read");
  return {std::istreambuf_iterator<char>(file), {}};
}

Object page(const char* layout) {
  const std::string path = std::string(DOZEWELL_BUNDLE "/") + layout + ".nib";
  const Object nib = objc::send<Object, "nibWithData:bundle:">(
      objc_getClass("UINib"), sim::dataOf(contentOf(path)), Object());
  return objc::send<Object, "firstObject">(
      objc::send<Object, "instantiateWithOwner:options:">(nib, Object(), Object()));
}

// Both pages, one over the other as in the panel.
struct Panel {
  objc::AutoreleasePool pool;
  objc::Strong<Object> view = objc::adopt(objc::send<Object, "initWithFrame:">(
      objc_alloc(objc_getClass("UIView")), sim::CGRect{{0, 0}, {321, 250}}));
  Object timer = page("CurrentTimerView");
  Object actions = page("OnTimerEndsSettingsView");

  Panel() {
    for (const Object each : {timer, actions}) {
      objc::send<void, "setFrame:">(each, sim::CGRect{{0, 0}, {321, 250}});
      objc::send<void, "addSubview:">(view.get(), each);
    }
    objc::send<void, "layoutIfNeeded">(view.get());
  }
};

void layOutThePanel(benchmark::State& state) {
  bench::BootedPhone::get();
  const Panel panel;
  bool hide = false;
  for (auto _ : state) {
    hide = !hide;
    objc::send<void, "hideBottomButtons:">(panel.timer, hide);
    objc::send<void, "layoutIfNeeded">(panel.view.get());
  }
}
BENCHMARK(layOutThePanel)->Unit(benchmark::kMicrosecond);

void layOutTheUnchangedPanel(benchmark::State& state) {
  bench::BootedPhone::get();
  const Panel panel;
  for (auto _ : state) {
    objc::send<void, "setNeedsLayout">(panel.view.get());
    objc::send<void, "layoutIfNeeded">(panel.view.get());
  }
}
BENCHMARK(layOutTheUnchangedPanel)->Unit(benchmark::kMicrosecond);

// What an open panel does every second: another time of the same width.
void showTheNextSecond(benchmark::State& state) {
  bench::BootedPhone::get();
  const Panel panel;
  const Object label = objc::send<Object, "timerLabel">(panel.timer);
  objc::send<void, "setFont:">(label, objc::send<Object, "monospacedDigitSystemFontOfSize:weight:">(
                                          objc_getClass("UIFont"), 50.0, 0.0));
  bool even = false;
  for (auto _ : state) {
    const objc::AutoreleasePool pool;
    even = !even;
    objc::send<void, "setText:">(label, sim::string(even ? "07:58" : "07:59"));
    objc::send<void, "layoutIfNeeded">(panel.view.get());
  }
}
BENCHMARK(showTheNextSecond)->Unit(benchmark::kMicrosecond);

}  // namespace
