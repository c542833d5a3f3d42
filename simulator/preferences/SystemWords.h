// The Settings application's own words.
#pragma once

#include <string>

namespace sim {

// What the application is called, in the phone's language; in English where that is none of ours.
std::string settingsTitle();

}  // namespace sim
