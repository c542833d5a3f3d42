#include "simulator/mediaremote/Playlist.h"

#include <gtest/gtest.h>

namespace sim {
namespace {

constexpr Nanoseconds oneSecond = nanosecondsPerSecond;

std::vector<Track> parsed(std::string_view content) {
  return parsePlaylist(content, "night.m3u");
}

std::string failure(std::string_view content) {
  try {
    parsed(content);
  } catch (const PlaylistError& error) {
    return error.what();
  }
  return "no failure";
}

TEST(Playlist, ReadsLengthsAndTitles) {
  const auto tracks = parsed("#EXTM3U\n#EXTINF:180,Rain\nrain.mp3\n#EXTINF:90.5,Sea\nsea.mp3\n");
  ASSERT_EQ(tracks.size(), 2U);
  EXPECT_EQ(tracks[0].title, "Rain");
  EXPECT_EQ(tracks[0].length, 180 * oneSecond);
  EXPECT_EQ(tracks[1].title, "Sea");
  EXPECT_EQ(tracks[1].length, 90 * oneSecond + oneSecond / 2);
}

TEST(Playlist, SplitsArtistAndTitleAtTheFirstDash) {
  const auto tracks = parsed("#EXTINF:1,The Band - Rain - live\nx.mp3\n");
  ASSERT_EQ(tracks.size(), 1U);
  EXPECT_EQ(tracks[0].artist, "The Band");
  EXPECT_EQ(tracks[0].title, "Rain - live");
}

TEST(Playlist, TitlesAreWhatFollowsTheFirstCommaOutsideQuotes) {
  const auto tracks = parsed("#EXTINF:60 logo=\"a,b\",Rain, then sun\nx.mp3\n");
  ASSERT_EQ(tracks.size(), 1U);
  EXPECT_EQ(tracks[0].title, "Rain, then sun");
  EXPECT_EQ(tracks[0].length, 60 * oneSecond);
}

TEST(Playlist, TracksWithoutInformationAreNamedLikeTheirFile) {
  const auto tracks = parsed("music/Slow Rain.flac\nC:\\Music\\Sea.mp3\nnoise\n");
  ASSERT_EQ(tracks.size(), 3U);
  EXPECT_EQ(tracks[0].title, "Slow Rain");
  EXPECT_EQ(tracks[0].length, 180 * oneSecond);
  EXPECT_EQ(tracks[1].title, "Sea");
  EXPECT_EQ(tracks[2].title, "noise");
}

TEST(Playlist, InformationBelongsToOneTrackOnly) {
  const auto tracks = parsed("#EXTINF:10,Rain\nrain.mp3\nsea.mp3\n");
  ASSERT_EQ(tracks.size(), 2U);
  EXPECT_EQ(tracks[1].title, "sea");
  EXPECT_EQ(tracks[1].length, 180 * oneSecond);
}

TEST(Playlist, ByteOrderMarkCarriageReturnsCommentsAndBlankLinesAreSkipped) {
  const auto tracks = parsed(
      "\xEF\xBB\xBF#EXTM3U\r\n\r\n# a comment\r\n#EXTINF:5,Schlaf \xC3\xBC"
      "ber\r\nx.mp3\r\n");
  ASSERT_EQ(tracks.size(), 1U);
  EXPECT_EQ(tracks[0].title,
            "Schlaf \xC3\xBC"
            "ber");
  EXPECT_EQ(tracks[0].length, 5 * oneSecond);
}

TEST(Playlist, TheLastLineNeedsNoLineBreak) {
  EXPECT_EQ(parsed("a.mp3\nb.mp3").size(), 2U);
}

TEST(Playlist, AnEmptyTitleIsTheFileName) {
  EXPECT_EQ(parsed("#EXTINF:5,\nrain.mp3\n").at(0).title, "rain");
}

TEST(Playlist, AnUnknownLengthIsTheDefaultOne) {
  EXPECT_EQ(parsed("#EXTINF:-1,Radio\nhttp://radio/x\n").at(0).length, defaultTrackLength);
}

TEST(Playlist, BadLengthsAreErrorsWithTheirLine) {
  EXPECT_EQ(failure("#EXTM3U\n#EXTINF:long,Rain\nx.mp3\n"),
            "night.m3u:2: bad track length \"long\"");
  EXPECT_EQ(failure("#EXTINF:0,Rain\n"), "night.m3u:1: bad track length \"0\"");
  EXPECT_EQ(failure("#EXTINF:-2,Rain\n"), "night.m3u:1: bad track length \"-2\"");
  EXPECT_EQ(failure("#EXTINF:inf,Rain\n"), "night.m3u:1: bad track length \"inf\"");
  EXPECT_EQ(failure("#EXTINF:1e300,Rain\n"), "night.m3u:1: bad track length \"1e300\"");
  EXPECT_EQ(failure("#EXTINF:nan,Rain\n"), "night.m3u:1: bad track length \"nan\"");
  EXPECT_EQ(failure("#EXTINF:,Rain\n"), "night.m3u:1: bad track length \"\"");
}

TEST(Playlist, AFileThatDoesNotExistIsAnError) {
  EXPECT_THROW(readPlaylist("/nowhere/night.m3u"), PlaylistError);
}

}  // namespace
}  // namespace sim
