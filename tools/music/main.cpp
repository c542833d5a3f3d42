// Writes the served phone's own music: dozewell-music FOLDER
#include <filesystem>
#include <iostream>
#include <stdexcept>

#include "tools/music/WaveFile.h"

int main(int count, char** words) {
  if (count != 2) {
    std::cerr << "usage: dozewell-music FOLDER\n";
    return 2;
  }
  try {
    const std::filesystem::path folder = words[1];
    std::filesystem::create_directories(folder);
    for (const music::Piece& piece : music::allPieces())
      music::writeWaveFile(piece, folder / (std::string(piece.fileName) + ".wav"));
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "dozewell-music: " << error.what() << '\n';
    return 1;
  }
}
