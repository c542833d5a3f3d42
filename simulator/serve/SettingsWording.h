// The text of settings.json, which the build turns into a program's constant.
#pragma once

namespace sim {

extern const char* const settingsWording;

}  // namespace sim
