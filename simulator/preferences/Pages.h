// What the pages of the Settings application show, and what their rows do.
#pragma once

#include "simulator/preferences/PageView.h"
#include "simulator/preferences/PaneFolder.h"

namespace sim {

class PreferencesApp;

// The panes' entries. What cannot be read is told at the foot.
Page rootPage(const PaneFolder& folder, PreferencesApp& app);
Page panePage(const SpecifierList& list, const std::string& back, PreferencesApp& app);
// A row for each value of a list, the chosen one with a check mark.
Page valuesPage(const Specifier& specifier, const PaneWords& words, const std::string& back,
                PreferencesApp& app);

}  // namespace sim
