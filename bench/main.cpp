#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench/BootedPhone.h"

namespace bench {
namespace {

// A folder that is new in every run and gone after it.
const std::filesystem::path& root() {
  static const std::filesystem::path folder = [] {
    std::string name = (std::filesystem::temp_directory_path() / "dozewell-bench-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) std::abort();
    return std::filesystem::path(name);
  }();
  return folder;
}

}  // namespace

BootedPhone::BootedPhone() : phone(root()), host({DOZEWELL_EXTENSION}) {
  host.launch();
}

BootedPhone& BootedPhone::get() {
  static BootedPhone phone;
  return phone;
}

}  // namespace bench

int main(int count, char** words) {
  benchmark::Initialize(&count, words);
  if (benchmark::ReportUnrecognizedArguments(count, words)) return 2;
  benchmark::RunSpecifiedBenchmarks();
  std::filesystem::remove_all(bench::root());
}
