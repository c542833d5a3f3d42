#include "simulator/program/FidelityCommand.h"

#include <iostream>

#include "objc/Ownership.h"
#include "simulator/host/TemporaryFolder.h"
#include "simulator/launch/Frameworks.h"
#include "simulator/machine/Phone.h"
#include "simulator/runwright/ShortcutRunner.h"
#include "simulator/standin/Fidelity.h"
#include "simulator/standin/Registration.h"

namespace sim {

int printFidelity() {
  const TemporaryFolder folder;
  const Phone phone(folder.path());
  const objc::AutoreleasePool pool;
  ShortcutRunner::current().install();  // an option of the phone, but of the page, too
  registerFrameworks();
  registerCephei();
  std::cout << fidelityMarkdown();
  return 0;
}

}  // namespace sim
