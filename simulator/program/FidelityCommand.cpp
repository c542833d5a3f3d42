#include "simulator/program/FidelityCommand.h"

#include <iostream>

#include "objc/Ownership.h"
#include "simulator/Fidelity.h"
#include "simulator/Frameworks.h"
#include "simulator/phone/Phone.h"
#include "simulator/program/TemporaryFolder.h"

namespace sim {

int printFidelity() {
  const TemporaryFolder folder;
  const Phone phone(folder.path());
  const objc::AutoreleasePool pool;
  registerFrameworks();
  std::cout << fidelityMarkdown();
  return 0;
}

}  // namespace sim
