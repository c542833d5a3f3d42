// Written by scripts/font-widths.py from NotoSansDevanagari-Regular.ttf.
#include "simulator/coretext/FontTable.h"

namespace sim {
namespace {

// clang-format off
constexpr std::uint16_t none = FontTable::none;
constexpr FontTable::Block blocks[] = {
    {0x900, 0x97f}};
constexpr std::uint16_t advances[] = {
    0, 0, 0, 2720, 7640, 7640, 10230, 4910, 4910, 5480, 7650, 8530, 6990, 5530, 5530, 5530, 5530,
    10230, 10230, 10230, 10230, 7620, 8180, 5630, 5910, 6470, 6340, 7010, 7420, 7560, 7420, 5040,
    5850, 5770, 5630, 7230, 5700, 6420, 5200, 6150, 5550, 5550, 5680, 7710, 5710, 7030, 5980, 5800,
    4090, 4090, 6780, 7600, 7600, 5560, 6800, 5780, 6760, 5310, 0, 2590, 0, 4670, 2590, 2590, 2590,
    0, 0, 0, 0, 0, 0, 0, 0, 2590, 2590, 2590, 2590, 0, 2730, 2590, 9020, 0, 0, 0, 0, 0, 0, 0, 7620,
    8180, 5630, 7420, 5770, 5630, 7710, 5800, 8530, 6990, 0, 0, 3790, 5990, 5510, 5510, 5510, 5510,
    5510, 5510, 5510, 5510, 5510, 5510, 4260, 3170, 7640, 7640, 10230, 10230, 7640, 7640, 5550,
    7420, 5800, 5630, 7230, 4690, 5770, 5710};
// clang-format on

}  // namespace

const FontTable faceNotoDevanagariRegular{blocks, advances};

}  // namespace sim
