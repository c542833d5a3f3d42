#include "simulator/serve/music/MusicFile.h"

#include <taglib/fileref.h>
#include <taglib/tag.h>
#include <taglib/wavfile.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <map>

#include "simulator/foundation/Unicode.h"

namespace sim {
namespace {

const std::map<std::string, std::string, std::less<>> musicTypes = {
    {".mp3", "audio/mpeg"}, {".flac", "audio/flac"}, {".ogg", "audio/ogg"}, {".oga", "audio/ogg"},
    {".opus", "audio/ogg"}, {".m4a", "audio/mp4"},   {".wav", "audio/wav"}};

std::string extensionOf(const std::filesystem::path& path) {
  std::string extension = path.extension().string();
  std::transform(extension.begin(), extension.end(), extension.begin(), [](char letter) {
    return char(std::tolower(static_cast<unsigned char>(letter)));
  });
  return extension;
}

// Up to the NUL that some formats end their texts with. Scripts and pages know UTF-8 only; half a
// surrogate pair in a tag is not.
std::string text(const TagLib::String& tag) {
  std::string utf8 = tag.stripWhiteSpace().to8Bit(true);
  utf8.resize(std::min(utf8.find('\0'), utf8.size()));
  return unicode::validUtf8Prefix(utf8) == utf8.size() ? utf8 : std::string();
}

// The library gives a WAVE file's tag of the one kind, where most have one of the other.
const TagLib::Tag* tagOf(const TagLib::FileRef& file) {
  const auto* wave = dynamic_cast<const TagLib::RIFF::WAV::File*>(file.file());
  if (wave != nullptr && !wave->hasID3v2Tag()) return wave->InfoTag();
  return file.tag();
}

Track describe(const TagLib::FileRef& file, const std::filesystem::path& path) {
  Track track;
  track.length =
      Nanoseconds(file.audioProperties()->lengthInMilliseconds()) * (nanosecondsPerSecond / 1000);
  if (const TagLib::Tag* tag = tagOf(file)) {
    track.title = text(tag->title());
    track.artist = text(tag->artist());
    track.album = text(tag->album());
  }
  if (!track.title || track.title->empty()) track.title = path.stem().string();
  return track;
}

}  // namespace

bool isNamedAsMusic(const std::filesystem::path& path) {
  return musicTypes.contains(extensionOf(path));
}

std::string musicNameEndings() {
  std::string endings;
  for (const auto& [ending, mimeType] : musicTypes) {
    if (ending == musicTypes.rbegin()->first)
      endings += " or ";
    else if (!endings.empty())
      endings += ", ";
    endings += ending;
  }
  return endings;
}

std::optional<MusicFile> readMusicFile(const std::filesystem::path& path, std::string& problem) {
  // The library does not say why it could not read.
  if (!std::ifstream(path)) {
    problem = std::strerror(errno);
    return std::nullopt;
  }
  const TagLib::FileRef file(path.c_str());
  if (file.isNull() || file.audioProperties() == nullptr) {
    problem = "it cannot be read as music";
    return std::nullopt;
  }
  MusicFile music{path, musicTypes.at(extensionOf(path)), describe(file, path), false};
  if (music.track.length <= 0) {
    problem = "it holds no sound";
    return std::nullopt;
  }
  music.hasCover = readCover(path).has_value();
  return music;
}

}  // namespace sim
