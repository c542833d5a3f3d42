// What setting lines must know about characters.
#pragma once

#include <string>
#include <string_view>

namespace sim {

// U+FFFD for every byte that belongs to no character.
std::u32string charactersOf(std::string_view utf8);
std::string utf8Of(std::u32string_view characters);

bool takesNoRoom(char32_t character);  // combining marks, direction marks, joiners
bool isFullWidth(char32_t character);  // a square: Chinese, Japanese, Korean, pictures
bool isTracked(char32_t character);    // its script allows room between letters
// A line may end after it, and begin with it: languages that write no blanks.
bool breaksAnywhere(char32_t character);
// Never at the start of a line.
bool mayNotBegin(char32_t character);
// By its first letter that has a direction, else as told.
bool isRightToLeft(std::u32string_view characters, bool otherwise);

}  // namespace sim
