// Small files of music in every format, silent.
#pragma once

#include <string>

namespace sim {

// Bytes of a file that lasts that many seconds.
std::string mp3(int seconds);
std::string flac(int seconds);
std::string wave(int seconds);
std::string oggVorbis(int seconds);
std::string m4a(int seconds);

// A picture, one pixel large.
std::string png();

}  // namespace sim
