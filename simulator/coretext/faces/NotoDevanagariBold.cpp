// Written by scripts/font-widths.py from NotoSansDevanagari-Bold.ttf.
#include "simulator/coretext/FontTable.h"

namespace sim {
namespace {

// clang-format off
constexpr std::uint16_t none = FontTable::none;
constexpr FontTable::Block blocks[] = {
    {0x900, 0x97f}};
constexpr std::uint16_t advances[] = {
    0, 0, 0, 2870, 8450, 8450, 11400, 5180, 5180, 5840, 8280, 9180, 7570, 6080, 6080, 6080, 6080,
    11400, 11400, 11400, 11400, 8230, 8960, 6100, 6450, 6950, 6900, 7600, 8160, 8090, 8290, 5410,
    6180, 6180, 6020, 7980, 6240, 7180, 5580, 6870, 6180, 6180, 6130, 8210, 6200, 7730, 6460, 6350,
    4380, 4380, 7380, 8050, 8050, 6050, 7500, 6250, 7440, 5700, 0, 2940, 0, 5270, 2940, 2940, 2940,
    0, 0, 0, 0, 0, 0, 0, 0, 2940, 2940, 2940, 2940, 0, 3090, 2940, 10140, 0, 0, 0, 0, 0, 0, 0, 8230,
    8960, 6100, 8160, 6180, 6020, 8210, 6350, 9180, 7570, 0, 0, 3980, 6380, 5700, 5700, 5700, 5700,
    5700, 5700, 5700, 5700, 5700, 5700, 4450, 3280, 8450, 8450, 11400, 11400, 8450, 8450, 6020,
    8160, 6350, 6100, 8070, 5010, 6180, 6200};
// clang-format on

}  // namespace

const FontTable faceNotoDevanagariBold{blocks, advances};

}  // namespace sim
