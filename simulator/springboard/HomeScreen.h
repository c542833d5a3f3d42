// What is behind everything else on the screen.
#pragma once

namespace sim {

// The application's key window, as large as the screen, with wallpaper and icons. Once a
// process; it is never closed. Nothing on a phone that has no windows.
void showHomeScreen();

}  // namespace sim
