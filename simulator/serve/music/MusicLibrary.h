// The music files of one folder.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "simulator/mediaremote/Track.h"
#include "simulator/serve/music/MusicFile.h"

namespace sim {

// Read once; nothing changes afterwards, so any thread may ask.
class MusicLibrary {
 public:
  // Without music.
  MusicLibrary() = default;
  // Looks for files below the folder, ordered by their paths. What is no readable music is named
  // on standard error and left out; so is a link that leads out of the folder. Throws
  // std::filesystem::filesystem_error when there is no such folder.
  explicit MusicLibrary(const std::filesystem::path& folder);

  const std::vector<MusicFile>& files() const { return files_; }
  // nullptr when there is none.
  const MusicFile* find(const std::string& id) const;
  static std::string idAt(std::size_t index) { return std::to_string(index + 1); }
  // The file that is this track; empty when none is.
  std::string idOf(const Track& track) const;

  // The script command that plays them all; empty without files. Those that no longer fit into a
  // line of a script are named on standard error.
  std::string playlistLine() const;

 private:
  std::vector<MusicFile> files_;
};

}  // namespace sim
