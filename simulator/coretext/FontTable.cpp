#include "simulator/coretext/FontTable.h"

namespace sim {

std::uint16_t FontTable::advance(char32_t character) const {
  std::size_t before = 0;
  for (const Block& block : blocks) {
    if (character < block.first) break;
    if (character <= block.last) return advances[before + (character - block.first)];
    before += block.last - block.first + 1;
  }
  return none;
}

}  // namespace sim
