// How long the host's start takes longer with the extension: loading it runs both initialisers.
#include <benchmark/benchmark.h>
#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>

#include "simulator/launch/Frameworks.h"
#include "simulator/machine/Phone.h"

namespace {

using Clock = std::chrono::steady_clock;

// In a process of its own: an extension is loaded once, and its classes stay.
double secondsToLoad(const char* extension) {
  int ends[2];
  if (pipe(ends) != 0) return 0;
  const pid_t child = fork();
  if (child == 0) {
    sim::Phone phone(std::filesystem::temp_directory_path() / "dozewell-bench-empty");
    sim::registerFrameworks();
    const auto started = Clock::now();
    void* handle = dlopen(extension, RTLD_NOW | RTLD_LOCAL);
    const double seconds = std::chrono::duration<double>(Clock::now() - started).count();
    const bool sent = handle != nullptr && write(ends[1], &seconds, sizeof seconds) > 0;
    _exit(sent ? 0 : 1);
  }
  close(ends[1]);
  double seconds = 0;
  const bool received = read(ends[0], &seconds, sizeof seconds) == sizeof seconds;
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return received ? seconds : 0;
}

void load(benchmark::State& state, const char* extension) {
  for (auto _ : state) {
    const double seconds = secondsToLoad(extension);
    if (seconds == 0) return state.SkipWithError("the extension did not load");
    state.SetIterationTime(seconds);
  }
}

void loadExtension(benchmark::State& state) {
  load(state, DOZEWELL_EXTENSION);
}
BENCHMARK(loadExtension)->UseManualTime()->Iterations(200)->Unit(benchmark::kMicrosecond);

// Without comparing every override and hook with the registered types, as on a phone.
void loadExtensionUnchecked(benchmark::State& state) {
  load(state, DOZEWELL_UNCHECKED_EXTENSION);
}
BENCHMARK(loadExtensionUnchecked)->UseManualTime()->Iterations(200)->Unit(benchmark::kMicrosecond);

}  // namespace
