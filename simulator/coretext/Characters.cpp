#include "simulator/coretext/Characters.h"

#include "simulator/foundation/Unicode.h"

namespace sim {
namespace {

bool isBetween(char32_t character, char32_t first, char32_t last) {
  return character >= first && character <= last;
}

bool isRightToLeftLetter(char32_t character) {
  return isBetween(character, 0x5BE, 0x5F4) || isBetween(character, 0x608, 0x64A) ||
         isBetween(character, 0x66D, 0x6D5) || isBetween(character, 0x6FA, 0x8FF) ||
         isBetween(character, 0xFB1D, 0xFDFF) || isBetween(character, 0xFE70, 0xFEFC) ||
         character == 0x200F;
}

bool isLetterFromLeft(char32_t character) {
  return isBetween(character, 'A', 'Z') || isBetween(character, 'a', 'z') ||
         isBetween(character, 0xC0, 0x2B8) || isBetween(character, 0x370, 0x589) ||
         isBetween(character, 0x900, 0x1FFF) || isBetween(character, 0x2C00, 0xD7FF) ||
         character == 0x200E;
}

}  // namespace

std::u32string charactersOf(std::string_view utf8) {
  std::u32string characters;
  const std::u16string units = unicode::fromUtf8Lossy(utf8);
  characters.reserve(units.size());
  for (std::size_t i = 0; i < units.size(); ++i) {
    const char32_t lead = units[i];
    if (isBetween(lead, 0xD800, 0xDBFF) && i + 1 < units.size())
      characters += 0x10000 + ((lead - 0xD800) << 10) + (char32_t(units[++i]) - 0xDC00);
    else
      characters += lead;
  }
  return characters;
}

std::string utf8Of(std::u32string_view characters) {
  std::u16string units;
  for (const char32_t character : characters) {
    if (character < 0x10000) {
      units += char16_t(character);
    } else {
      units += char16_t(0xD800 + ((character - 0x10000) >> 10));
      units += char16_t(0xDC00 + ((character - 0x10000) & 0x3FF));
    }
  }
  return unicode::toUtf8(units);
}

bool takesNoRoom(char32_t character) {
  return isBetween(character, 0x300, 0x36F) || isBetween(character, 0x200B, 0x200F) ||
         isBetween(character, 0x202A, 0x202E) || isBetween(character, 0x2060, 0x2069) ||
         isBetween(character, 0xFE00, 0xFE0F) || character == 0xFEFF || character < 0x20;
}

bool isFullWidth(char32_t character) {
  return isBetween(character, 0x1100, 0x115F) || isBetween(character, 0x2600, 0x27BF) ||
         isBetween(character, 0x2E80, 0xD7A3) || isBetween(character, 0xF900, 0xFAFF) ||
         isBetween(character, 0xFE30, 0xFE6F) || isBetween(character, 0xFF01, 0xFF60) ||
         isBetween(character, 0xFFE0, 0xFFE6) || character >= 0x1F000;
}

bool isTracked(char32_t character) {
  return character < 0x530 || isBetween(character, 0x1E00, 0x2122);
}

bool breaksAnywhere(char32_t character) {
  return isBetween(character, 0x2E80, 0xA4CF) || isBetween(character, 0xF900, 0xFAFF) ||
         isBetween(character, 0xFF01, 0xFF60) || character >= 0x20000;
}

bool mayNotBegin(char32_t character) {
  constexpr std::u32string_view closing =
      U"、。，．：；！？）」』】〉》］｝ー々ぁぃぅぇぉっゃゅょァィゥェォッャュョ";
  return closing.find(character) != closing.npos || takesNoRoom(character);
}

bool isRightToLeft(std::u32string_view characters, bool otherwise) {
  for (const char32_t character : characters) {
    if (isRightToLeftLetter(character)) return true;
    if (isLetterFromLeft(character)) return false;
  }
  return otherwise;
}

}  // namespace sim
