// One file of music.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "simulator/mediaremote/Track.h"

namespace sim {

struct MusicFile {
  std::filesystem::path path;  // canonical
  std::string mimeType;
  Track track;  // always with a title: the file's name where the tags give none
  bool hasCover = false;
};

struct Cover {
  std::string mimeType;
  std::string bytes;
};

// Whether the name says that it is music.
bool isNamedAsMusic(const std::filesystem::path& path);

// The ends of such names: ".flac, .m4a or .mp3".
std::string musicNameEndings();

// Empty, with the reason in `problem`, when it cannot be played.
std::optional<MusicFile> readMusicFile(const std::filesystem::path& path, std::string& problem);

// The picture within the file, if it is of a kind that pages show.
std::optional<Cover> readCover(const std::filesystem::path& path);

}  // namespace sim
