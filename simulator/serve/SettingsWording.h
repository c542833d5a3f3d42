// The settings of the page as JSON, which the build makes from the extension's list of settings and
// from the table of their wording, tweak/settings/pane.
#pragma once

namespace sim {

extern const char* const settingsWording;

}  // namespace sim
