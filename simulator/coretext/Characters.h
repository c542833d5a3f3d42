// What setting lines must know about characters: by ICU.
#pragma once

#include <string_view>

namespace sim {

// By its first letter that has a direction, else as told. The order within a line is found by who
// draws it, by the same rules: only where the line begins is decided here.
bool isRightToLeft(std::string_view utf8, bool otherwise);

// Whether its scripts allow room between letters: Latin, Greek and Cyrillic only.
bool takesTracking(std::u16string_view text);

}  // namespace sim
