// The applications on the home screen. Those that say so can be opened.
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

#include "objc/Ownership.h"

namespace sim {

inline constexpr double iconSize = 60;  // points
inline constexpr std::size_t homeIconCount = 8;
inline constexpr std::size_t dockIconCount = 4;

// Counted from 0, the dock's after the others. nil on a phone without views.
objc::Strong<objc::Object> makeHomeIcon(std::size_t index);
std::string_view homeIconTitle(std::size_t index);

// Before the home screen is made.
void onIconTap(std::string_view title, std::function<void()> opens);
// Nothing for an application that cannot be opened.
void openApplication(std::size_t index);

}  // namespace sim
