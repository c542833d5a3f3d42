#include "simulator/program/ReferenceCommand.h"

#include <iostream>

#include "simulator/host/TemporaryFolder.h"
#include "simulator/machine/Phone.h"
#include "simulator/script/Commands.h"
#include "simulator/script/values/Reference.h"

namespace sim {

int printReference() {
  const TemporaryFolder folder;
  const Phone phone(folder.path());
  std::cout << commandReference(allCommands());
  return 0;
}

}  // namespace sim
