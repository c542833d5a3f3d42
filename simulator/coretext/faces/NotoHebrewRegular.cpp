// Written by scripts/font-widths.py from NotoSansHebrew-Regular.ttf.
#include "simulator/coretext/FontTable.h"

namespace sim {
namespace {

// clang-format off
constexpr std::uint16_t none = FontTable::none;
constexpr FontTable::Block blocks[] = {
    {0x590, 0x5ff}};
constexpr std::uint16_t advances[] = {
    none, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3240, 0, 5250, 0, 0, 2460, 0, 0, 3970, 0, none,
    none, none, none, none, none, none, none, 6320, 5720, 3740, 5420, 6270, 3010, 3300, 6620, 6340,
    2950, 5450, 5150, 5220, 6840, 6600, 3290, 3790, 6430, 5930, 6200, 6010, 5290, 5560, 6270, 5230,
    7300, 6850, none, none, none, none, none, 5890, 6020, 5990, 1860, 3650, none, none, none, none,
    none, none, none, none, none, none, none};
// clang-format on

}  // namespace

const FontTable faceNotoHebrewRegular{blocks, advances};

}  // namespace sim
