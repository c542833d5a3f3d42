#include "simulator/program/ReferenceCommand.h"

#include <iostream>

#include "simulator/phone/Phone.h"
#include "simulator/phone/TemporaryFolder.h"
#include "simulator/phone/script/Commands.h"
#include "simulator/phone/script/Reference.h"

namespace sim {

int printReference() {
  const TemporaryFolder folder;
  const Phone phone(folder.path());
  std::cout << commandReference(allCommands());
  return 0;
}

}  // namespace sim
