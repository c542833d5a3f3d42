// Where the host keeps its user defaults. Works before the phone boots, too.
#pragma once

#include <filesystem>

#include "simulator/foundation/PropertyListNode.h"

namespace sim {

std::filesystem::path userDefaultsFile();

// The dictionary in the file; an empty one when there is no file. A file that is no dictionary is
// reported on stderr, kept under another name (FILE.corrupt), and counts as empty.
PropertyListNode loadUserDefaults();

// False, with the reason on stderr, when the file could not be replaced.
bool saveUserDefaults(plist_t dictionary);

}  // namespace sim
