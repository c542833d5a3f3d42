// Playlists in the M3U format.
#pragma once

#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/mediaremote/Track.h"

namespace sim {

class PlaylistError : public std::runtime_error {
 public:
  // The message reads "NAME:LINE: problem".
  PlaylistError(const std::string& name, std::size_t line, const std::string& problem)
      : std::runtime_error(name + ':' + std::to_string(line) + ": " + problem) {}
};

// A track without a stated length, or with the format's "unknown" (-1), lasts this long.
inline constexpr Nanoseconds defaultTrackLength = 180 * nanosecondsPerSecond;

// Reads extended M3U: "#EXTINF:SECONDS,Title" or "#EXTINF:SECONDS,Artist - Title" before a line
// that names the file. Other comments, a byte order mark and CR at line ends are skipped; the
// files themselves are never opened. A track without #EXTINF is titled like its file.
// `name` is for messages only. Throws PlaylistError.
std::vector<Track> parsePlaylist(std::string_view content, const std::string& name);

// Throws PlaylistError, with line 0, when the file cannot be read.
std::vector<Track> readPlaylist(const std::filesystem::path& file);

}  // namespace sim
