#include <stdexcept>

#include "simulator/program/ServeCommand.h"

namespace sim {

int servePhone(const Options&) {
  throw std::runtime_error("built without the server (DOZEWELL_SERVER): it only plays scripts");
}

}  // namespace sim
