// What the Settings application is made of.
#include "simulator/preferences/Keyboard.h"
#include "simulator/preferences/PageView.h"
#include "simulator/preferences/PreferencesApp.h"
#include "simulator/preferences/RowView.h"
#include "simulator/preferences/SwitchView.h"
#include "simulator/preferences/TapArea.h"
#include "simulator/springboard/HomeIcons.h"
#include "simulator/standin/Registration.h"

namespace sim {

// A class comes after its superclass.
void registerPreferences() {
  TapArea::registerClass();
  SwitchView::registerClass();
  RowView::registerClass();
  PageView::registerClass();
  Keyboard::registerClass();
  onIconTap("Settings", [] { PreferencesApp::current().open(); });
}

}  // namespace sim
