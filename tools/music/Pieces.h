// Three short pieces, gentle enough to fall asleep to.
#pragma once

#include <vector>

#include "tools/music/Sound.h"

namespace music {

struct Piece {
  const char* fileName;  // without its extension; players go by their order
  const char* title;
  const char* artist;
  const char* album;
  Sound sound;
};

std::vector<Piece> allPieces();

}  // namespace music
