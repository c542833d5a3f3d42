#include <benchmark/benchmark.h>

#include "bench/BootedPhone.h"

namespace bench {

BootedPhone::BootedPhone() : phone(root.path()), host({DOZEWELL_EXTENSION}) {
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
}
