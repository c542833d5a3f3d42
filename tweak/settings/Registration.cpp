#include "tweak/settings/Registration.h"

#include "tweak/settings/Dozewell2StorageManager.h"

// The domain's one preferences object, kept as long as the process; other extensions may use it.
extern "C" __attribute__((visibility("default"))) HBPreferences preferences;
HBPreferences preferences;

void registerSettings() {
  // Never released: the bindings live as long as it does.
  preferences = HBPreferences::make("com.corvane.dozewell2"_ns).detach();
  Dozewell2StorageManager::bindTo(preferences);
}
