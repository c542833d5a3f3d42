#include "simulator/Fidelity.h"
#include "simulator/Frameworks.h"
#include "simulator/cephei/HBPreferences.h"
#include "simulator/foundation/Values.h"

namespace sim {

void nameCephei() {
  const NamesAlone names;
  HBPreferences::registerClass();
}

void registerCephei() {
  const objc::AutoreleasePool pool;
  HBPreferencesDidChangeNotification =
      objc::retain(string("HBPreferencesDidChangeNotification")).detach().get();
  recordFunction("Cephei", "HBPreferencesDidChangeNotification", {Grade::real, ""});
  HBPreferences::registerClass();
}

}  // namespace sim
