// Control Center, as far as the user's fingers move it.
#pragma once

#include <string>
#include <string_view>

#include "objc/Ownership.h"

namespace sim {

inline constexpr std::string_view nowPlayingModule =
    "com.apple.mediaremote.controlcenter.nowplaying";

// The container of that module, made when it is first asked for and never freed; nil when the
// class is missing.
objc::Object moduleContainer(const std::string& identifier);

}  // namespace sim
