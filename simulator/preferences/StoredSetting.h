// A setting in its domain's file, where the Settings application keeps it.
#pragma once

#include "simulator/preferences/Specifier.h"

namespace sim {

// What is stored, else the specifier's default; NoValue without either.
SettingsValue storedSetting(const Specifier& specifier);

// Stores it and posts the specifier's notification. Throws std::runtime_error when the file cannot
// be written.
void storeSetting(const Specifier& specifier, const SettingsValue& value);

}  // namespace sim
