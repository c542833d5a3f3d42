#include "simulator/program/FidelityCommand.h"

#include <iostream>

#include "objc/Ownership.h"
#include "simulator/Fidelity.h"
#include "simulator/Frameworks.h"
#include "simulator/phone/Phone.h"
#include "simulator/phone/TemporaryFolder.h"
#include "simulator/runwright/ShortcutRunner.h"

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
