#include "simulator/coretext/Characters.h"

#include <unicode/ubidi.h>
#include <unicode/uscript.h>
#include <unicode/utf16.h>

#include "simulator/foundation/Unicode.h"

namespace sim {

bool isRightToLeft(std::string_view utf8, bool otherwise) {
  const std::u16string units = unicode::fromUtf8Lossy(utf8);
  const UBiDiDirection direction = ubidi_getBaseDirection(units.data(), std::int32_t(units.size()));
  return direction == UBIDI_NEUTRAL ? otherwise : direction == UBIDI_RTL;
}

bool takesTracking(std::u16string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    UChar32 character = 0;
    U16_NEXT(text.data(), at, text.size(), character);
    UErrorCode problem = U_ZERO_ERROR;
    switch (uscript_getScript(character, &problem)) {
      case USCRIPT_COMMON:
      case USCRIPT_INHERITED:
      case USCRIPT_LATIN:
      case USCRIPT_GREEK:
      case USCRIPT_CYRILLIC:
        break;
      default:
        return false;
    }
  }
  return true;
}

}  // namespace sim
