// How wide the characters of one face are: tables that scripts/font-widths.py writes.
#pragma once

#include <cstdint>
#include <span>

namespace sim {

struct FontTable {
  static constexpr std::uint16_t none = 0xFFFF;  // the face has no such character
  static constexpr double units = 10000;         // of one em

  struct Block {
    char32_t first;
    char32_t last;
  };
  std::span<const Block> blocks;
  std::span<const std::uint16_t> advances;  // of all blocks' characters, in order

  // In units, or none.
  std::uint16_t advance(char32_t character) const;
};

extern const FontTable faceInterRegular, faceInterMedium, faceInterSemiBold, faceInterBold;
extern const FontTable faceInterDisplayThin, faceInterDisplayLight, faceInterDisplayRegular;
extern const FontTable faceInterDisplayMedium, faceInterDisplaySemiBold, faceInterDisplayBold;
extern const FontTable faceNotoHebrewRegular, faceNotoHebrewBold;
extern const FontTable faceNotoArabicRegular, faceNotoArabicBold;
extern const FontTable faceNotoDevanagariRegular, faceNotoDevanagariBold;

}  // namespace sim
