// The panel's page with the label, as the indicators see it.
#pragma once

namespace TimeLeftPage {

// The label says something of another form: its unit may be another, too. Main thread. The panel is
// above this folder, and defines this.
void labelChanged();

}  // namespace TimeLeftPage
