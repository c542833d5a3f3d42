// Written by scripts/font-widths.py from NotoSansHebrew-Bold.ttf.
#include "simulator/coretext/FontTable.h"

namespace sim {
namespace {

// clang-format off
constexpr std::uint16_t none = FontTable::none;
constexpr FontTable::Block blocks[] = {
    {0x590, 0x5ff}};
constexpr std::uint16_t advances[] = {
    none, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3250, 0, 5160, 0, 0, 2720, 0, 0, 4430, 0, none,
    none, none, none, none, none, none, none, 6760, 5940, 4120, 5710, 6580, 3380, 3710, 6870, 6600,
    3320, 5700, 5280, 5560, 7020, 7020, 3550, 4040, 6800, 6300, 6540, 6280, 5870, 5920, 6540, 5420,
    7870, 7220, none, none, none, none, none, 6700, 7020, 7040, 2230, 4440, none, none, none, none,
    none, none, none, none, none, none, none};
// clang-format on

}  // namespace

const FontTable faceNotoHebrewBold{blocks, advances};

}  // namespace sim
