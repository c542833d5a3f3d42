// Control Center's modules but the player's: what each shows of the phone, and what it does.
#pragma once

#include <vector>

#include "objc/Ownership.h"
#include "simulator/controlcenter/ModuleGrid.h"

namespace sim {

// What is in the tiles. The views are the tiles'.
struct TileControls {
  std::vector<objc::Object> switches;  // CCUIRoundButton
  objc::Object volume;                 // CCUIContinuousSliderView
  objc::Object focusLabel;             // UILabel
};

// Fills a tile of that size. Those that do nothing are dimmed.
void fillTile(objc::Object tile, const ModulePlace& place, CGSize size, TileControls& controls);
// Draws what is so now; asks for no layout.
void refreshTiles(const TileControls& controls);

}  // namespace sim
