// Sound files in the WAVE format: 16 bits a sample, with title, artist and album.
#pragma once

#include <filesystem>

#include "tools/music/Pieces.h"

namespace music {

// Whole or not at all. Throws std::runtime_error when it cannot be written.
void writeWaveFile(const Piece& piece, const std::filesystem::path& file);

}  // namespace music
