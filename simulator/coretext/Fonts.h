// The font files that text is measured with: those that the packages install, whatever other fonts
// and settings a machine has.
#pragma once

#include <unicode/uscript.h>

#include "simulator/coretext/FontStyle.h"

struct hb_font_t;

namespace sim {

// The first font that has the character: the one that stands in for the system's, the script's,
// those of the far east and with symbols. Null when none has it. The program ends with the name of
// the package when a file is missing.
hb_font_t* fontWith(char32_t character, UScriptCode script, const FontStyle& style);

}  // namespace sim
