// The whole of a library that extensions link. The code of its classes is in the simulator, which
// learns here that an extension names the library; the loader runs this before the initialisers of
// whoever names it, as a phone's does.
#include "simulator/launch/Loading.h"

namespace {

[[gnu::constructor]] void load() {
  dozewell_simulator_library_is_loaded(LIBRARY_NAME);
}

}  // namespace
