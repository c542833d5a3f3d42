#include "simulator/coretext/FontStyle.h"

#include <algorithm>
#include <cmath>

#include "simulator/coretext/Characters.h"
#include "simulator/coretext/FontTable.h"

namespace sim {
namespace {

struct CssWeight {
  double upTo;  // UIFont's weight
  int css;
};
// Between UIFont's named weights.
constexpr CssWeight cssWeights[] = {{-0.7, 100}, {-0.5, 200}, {-0.2, 300}, {0.11, 400},
                                    {0.26, 500}, {0.35, 600}, {0.48, 700}, {0.59, 800}};

const FontTable& textFace(int css) {
  if (css <= 400) return faceInterRegular;
  if (css <= 500) return faceInterMedium;
  return css <= 600 ? faceInterSemiBold : faceInterBold;
}

const FontTable& displayFace(int css) {
  if (css <= 200) return faceInterDisplayThin;
  if (css <= 300) return faceInterDisplayLight;
  if (css <= 400) return faceInterDisplayRegular;
  if (css <= 500) return faceInterDisplayMedium;
  return css <= 600 ? faceInterDisplaySemiBold : faceInterDisplayBold;
}

// Where the system's font has no such character.
const FontTable* otherFace(char32_t character, int css) {
  const bool bold = css >= 600;
  if (character >= 0x590 && character < 0x600)
    return bold ? &faceNotoHebrewBold : &faceNotoHebrewRegular;
  if (character >= 0x600 && character < 0x700)
    return bold ? &faceNotoArabicBold : &faceNotoArabicRegular;
  if (character >= 0x900 && character < 0x980)
    return bold ? &faceNotoDevanagariBold : &faceNotoDevanagariRegular;
  return nullptr;
}

constexpr std::uint16_t fullWidth = 10000;  // scripts of the far east, pictures
constexpr std::uint16_t unknown = 6000;     // about what a letter takes

std::uint16_t unitsOf(char32_t character, const FontTable& face, int css) {
  if (takesNoRoom(character)) return 0;
  if (const auto units = face.advance(character); units != FontTable::none) return units;
  const FontTable* other = otherFace(character, css);
  const auto units = other != nullptr ? other->advance(character) : FontTable::none;
  if (units != FontTable::none) return units;
  return isFullWidth(character) ? fullWidth : unknown;
}

}  // namespace

// The curve that the face's designer publishes for its text sizes.
double FontStyle::tracking() const {
  if (isDisplay()) return 0;
  return pointSize * (-0.0223 + 0.185 * std::exp(-0.1745 * pointSize));
}

int FontStyle::cssWeight() const {
  for (const CssWeight& each : cssWeights)
    if (weight < each.upTo) return each.css;
  return 900;
}

double advance(char32_t character, const FontStyle& style) {
  const int css = style.cssWeight();
  const FontTable& face = style.isDisplay() ? displayFace(css) : textFace(css);
  std::uint16_t units = unitsOf(character, face, css);
  if (style.monospacedDigits && character >= '0' && character <= '9')
    for (char32_t digit = '0'; digit <= '9'; ++digit) units = std::max(units, face.advance(digit));
  const double width = units * style.pointSize / FontTable::units;
  return units != 0 && isTracked(character) ? width + style.tracking() : width;
}

double textWidth(std::u32string_view characters, const FontStyle& style) {
  double width = 0;
  for (const char32_t character : characters) width += advance(character, style);
  return width;
}

double textWidth(std::string_view utf8, const FontStyle& style) {
  return textWidth(charactersOf(utf8), style);
}

}  // namespace sim
