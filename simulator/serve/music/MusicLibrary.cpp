#include "simulator/serve/music/MusicLibrary.h"

#include <algorithm>
#include <iostream>

#include "simulator/foundation/Unicode.h"
#include "simulator/machine/FileContent.h"
#include "simulator/machine/Journal.h"
#include "simulator/script/words/Script.h"

namespace sim {

namespace files = std::filesystem;

namespace {

void leaveOut(const files::path& path, const std::string& problem) {
  std::cerr << path.string() << ": left out: " << problem << '\n';
}

// Folders that are links are not entered, so there is no way round in circles.
std::vector<files::path> musicBelow(const files::path& folder) {
  std::vector<files::path> found;
  const auto options = files::directory_options::skip_permission_denied;
  for (const auto& entry : files::recursive_directory_iterator(folder, options)) {
    std::error_code ignored;  // a dangling link is no file
    if (isNamedAsMusic(entry.path()) && entry.is_regular_file(ignored))
      found.push_back(entry.path());
  }
  std::sort(found.begin(), found.end());
  return found;
}

std::optional<MusicFile> readInside(const files::path& folder, const files::path& path,
                                    std::string& problem) {
  problem = "it lies outside the folder";
  if (!liesIn(folder, path)) return std::nullopt;
  problem = "its name is not UTF-8";
  const std::string name = path.string();
  if (unicode::validUtf8Prefix(name) != name.size()) return std::nullopt;
  return readMusicFile(path, problem);
}

std::string words(const Track& track) {
  const std::string text = ' ' + sim::quoted(*track.title) + ' ' + secondsText(track.length);
  return track.artist.empty() ? text : text + " by " + sim::quoted(track.artist);
}

}  // namespace

MusicLibrary::MusicLibrary(const files::path& folder) {
  const files::path root = files::canonical(folder);
  for (const files::path& named : musicBelow(root)) {
    const files::path path = files::canonical(named);
    std::string problem;
    if (auto file = readInside(root, path, problem))
      files_.push_back(std::move(*file));
    else
      leaveOut(named, problem);
  }
}

const MusicFile* MusicLibrary::find(const std::string& id) const {
  for (std::size_t index = 0; index < files_.size(); ++index) {
    if (idAt(index) == id) return &files_[index];
  }
  return nullptr;
}

std::string MusicLibrary::idOf(const Track& track) const {
  const auto found = std::find_if(files_.begin(), files_.end(), [&track](const MusicFile& file) {
    return file.track.title == track.title && file.track.artist == track.artist &&
           file.track.length == track.length;
  });
  return found == files_.end() ? "" : idAt(std::size_t(found - files_.begin()));
}

std::string MusicLibrary::playlistLine() const {
  const std::string playlist = "playlist";
  std::string line;
  for (const MusicFile& file : files_) {
    const std::string next = words(file.track);
    if (playlist.size() + line.size() + next.size() > longestScriptLine)
      leaveOut(file.path, "the playlist is full");
    else
      line += next;
  }
  return line.empty() ? line : playlist + line;
}

}  // namespace sim
