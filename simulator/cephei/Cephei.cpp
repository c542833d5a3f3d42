#include "simulator/cephei/HBPreferences.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/Fidelity.h"
#include "simulator/standin/Registration.h"

namespace sim {

void nameCephei() {
  const NamesOnly names;
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
