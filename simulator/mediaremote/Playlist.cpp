#include "simulator/mediaremote/Playlist.h"

#include <optional>

#include "simulator/foundation/Unicode.h"
#include "simulator/machine/FileContent.h"
#include "simulator/machine/Journal.h"
#include "simulator/machine/NumberReader.h"

namespace sim {
namespace {

constexpr std::string_view informationMark = "#EXTINF:";
constexpr double longestTrack = 7 * 24 * 3600.0;  // seconds; more is a mistake in the file

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::string_view takeLine(std::string_view& rest) {
  const auto end = rest.find('\n');
  const std::string_view line = rest.substr(0, end);
  rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
  return trimmed(line);
}

// Titles follow the first comma that is not inside a quoted attribute value.
std::size_t titleComma(std::string_view information) {
  bool insideQuotes = false;
  for (std::size_t at = 0; at < information.size(); ++at) {
    if (information[at] == '"') insideQuotes = !insideQuotes;
    if (information[at] == ',' && !insideQuotes) return at;
  }
  return std::string_view::npos;
}

// nullopt for anything that is not a playable length.
std::optional<Nanoseconds> parseLength(std::string_view text) {
  const auto length = wholeNumber<double>(text);
  if (length == -1) return defaultTrackLength;
  if (!length || *length > longestTrack) return std::nullopt;
  const Nanoseconds exact = nanoseconds(*length);
  return exact > 0 ? std::optional(exact) : std::nullopt;
}

void setNames(Track& track, std::string_view text) {
  constexpr std::string_view separator = " - ";
  if (const auto at = text.find(separator); at != std::string_view::npos) {
    track.artist = trimmed(text.substr(0, at));
    text = trimmed(text.substr(at + separator.size()));
  }
  if (!text.empty()) track.title = text;
}

std::string fileTitle(std::string_view location) {
  const auto slash = location.find_last_of("/\\");
  if (slash != std::string_view::npos && slash + 1 < location.size())
    location.remove_prefix(slash + 1);
  const auto dot = location.rfind('.');
  if (dot != std::string_view::npos && dot > 0) location = location.substr(0, dot);
  return std::string(location);
}

class PlaylistReader {
 public:
  explicit PlaylistReader(const std::string& name) : name_(name) {}

  void read(std::string_view line) {
    ++line_;
    if (line.starts_with(informationMark))
      readInformation(line.substr(informationMark.size()));
    else if (!line.empty() && !line.starts_with('#'))
      addTrack(line);
  }

  std::vector<Track> takeTracks() { return std::move(tracks_); }

 private:
  void readInformation(std::string_view information) {
    const auto comma = titleComma(information);
    std::string_view length = trimmed(information.substr(0, comma));
    // Attributes such as tvg-id="x" may stand between length and comma.
    length = length.substr(0, length.find_first_of(" \t"));
    const auto parsed = parseLength(length);
    if (!parsed) throw PlaylistError(name_, line_, "bad track length " + quoted(length));
    next_ = Track();
    next_.length = *parsed;
    if (comma != std::string_view::npos) setNames(next_, trimmed(information.substr(comma + 1)));
  }

  void addTrack(std::string_view location) {
    if (!next_.title) next_.title = fileTitle(location);
    if (next_.length == 0) next_.length = defaultTrackLength;
    tracks_.push_back(std::move(next_));
    next_ = Track();
  }

  const std::string& name_;
  std::size_t line_ = 0;
  Track next_;  // what an #EXTINF line has told about the track to come
  std::vector<Track> tracks_;
};

}  // namespace

std::vector<Track> parsePlaylist(std::string_view content, const std::string& name) {
  content = unicode::withoutByteOrderMark(content);
  PlaylistReader reader(name);
  while (!content.empty()) reader.read(takeLine(content));
  return reader.takeTracks();
}

std::vector<Track> readPlaylist(const std::filesystem::path& file) {
  const auto content = fileContent(file);
  if (!content) throw PlaylistError(file.string(), 0, "cannot be read");
  return parsePlaylist(*content, file.string());
}

}  // namespace sim
