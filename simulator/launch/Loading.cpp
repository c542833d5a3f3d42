#include "simulator/launch/Loading.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "simulator/launch/ClassJournal.h"
#include "simulator/launch/Tracing.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/Registration.h"

void dozewell_simulator_library_is_loaded(const char* name) {
  if (std::string_view(name) != "Cephei") {
    std::fprintf(stderr, "there is no library %s for the simulator\n", name);
    std::abort();
  }
  static bool registered = false;
  if (registered) return;
  registered = true;
  // Not the extension's doing.
  const sim::ClassJournalPause pause;
  sim::registerCephei();
  sim::traceNewClasses(sim::Phone::current().setup.traced);
}
