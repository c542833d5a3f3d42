#include "simulator/program/ReferenceCommand.h"

#include <iostream>

#include "simulator/phone/script/Commands.h"
#include "simulator/phone/script/Reference.h"

namespace sim {

int printReference() {
  std::cout << commandReference(allCommands());
  return 0;
}

}  // namespace sim
