// Where Control Center's modules stand.
#pragma once

#include <array>

#include "simulator/coregraphics/Geometry.h"

namespace sim {

// Cells of the grid, from 0; columns from where reading begins.
struct Cells {
  int column;
  int row;
  int columns;
  int rows;
};

enum class ModuleKind { connectivity, media, button, slider, wide };

struct ModulePlace {
  ModuleKind kind;
  Cells upright;
  Cells turned;  // the phone in landscape
};

// Everything of a simulated phone's Control Center, that of the music once.
const std::array<ModulePlace, 11>& modulePlaces();
const ModulePlace& mediaPlace();

// The grid on a screen of that size; mirrored where the interface runs from right to left.
class ModuleGrid {
 public:
  ModuleGrid(CGSize screen, bool isRightToLeft);
  CGRect frame(const ModulePlace& place) const;
  // As wide as four columns, in the middle of the screen.
  CGRect expandedFrame() const;

 private:
  CGSize screen_;
  bool isTurned_;
  bool isRightToLeft_;
};

}  // namespace sim
