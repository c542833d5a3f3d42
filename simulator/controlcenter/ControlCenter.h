// Control Center, as far as the user's fingers move it.
#pragma once

#include <string>
#include <string_view>

#include "objc/Ownership.h"

namespace sim {

inline constexpr std::string_view nowPlayingModule =
    "com.apple.mediaremote.controlcenter.nowplaying";

// Over everything but alerts, with controllers of its own each time; they go when it is closed.
// Nothing happens when it is open (closed) already, or where its classes are missing.
void openControlCenter();
// An expanded module collapses first. Locking the phone does the same.
void closeControlCenter();
// CCUIModularControlCenterOverlayViewController; nil while Control Center is closed.
objc::Object openedControlCenter();

// The container of that module: the one on the screen, or else one that nobody sees, made when it
// is first asked for and never freed. nil when the class is missing.
objc::Object moduleContainer(const std::string& identifier);

}  // namespace sim
