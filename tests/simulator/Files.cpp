// The files that scripts of the command line name.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/simulator/RunProgram.h"

namespace sim {
namespace {

namespace files = std::filesystem;

constexpr const char* playlist = "#EXTINF:10,Rain\nrain.mp3\n";

// The folder of the scripts that are played.
files::path folder() {
  return files::path(writeFile("marker", "")).parent_path();
}

std::string bounded(const files::path& path) {
  return "--quiet --folder '" + path.string() + "'";
}

TEST(Files, LieBesideTheScript) {
  writeFile("night.m3u", playlist);
  EXPECT_EQ(play("playlist-file night.m3u\nboot\nexpect-track Rain").errors, "");
  EXPECT_EQ(play("playlist-file other.m3u").errors,
            "SCRIPT:1:1: " + (folder() / "other.m3u").string() + ":0: cannot be read\n");
}

TEST(Files, LieWhereThePersonWhoPlaysSays) {
  files::create_directory(folder() / "sub");
  writeFile("sub/night.m3u", playlist);
  const std::string path = (folder() / "sub/night.m3u").string();
  EXPECT_EQ(play("playlist-file \"" + path + "\"\nboot\nexpect-track Rain").errors, "");
  EXPECT_EQ(play("playlist-file sub/../sub/night.m3u\nboot\nexpect-track Rain").errors, "");
  EXPECT_EQ(play("boot\nplaylist-file none.m3u", "--quiet --playlist '" + path + "'").errors, "");
}

TEST(Files, MayBeBoundToOneFolder) {
  writeFile("night.m3u", playlist);
  const files::path inside = folder() / "inside";
  files::create_directory(inside);
  writeFile("inside/night.m3u", playlist);
  EXPECT_EQ(
      play("playlist-file night.m3u\nboot\nexpect-track Rain\nsnapshot a.svg", bounded(inside))
          .errors,
      "");
  EXPECT_TRUE(files::exists(inside / "a.svg"));
  EXPECT_EQ(play("playlist-file ../night.m3u", bounded(inside)).errors,
            "SCRIPT:1:15: expected a file below the session's folder, found ../night.m3u\n");
  // As before after a restart of the host, which is another process.
  EXPECT_EQ(play("boot\nrespring\nsnapshot ../b.svg", bounded(inside)).errors,
            "SCRIPT:3:10: expected a file below the session's folder, found ../b.svg\n");
  EXPECT_FALSE(files::exists(folder() / "b.svg"));
}

TEST(Files, NeedAFolderThatIsThere) {
  const Outcome outcome = play("boot", "--folder /nowhere/at/all");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(
      outcome.errors.rfind(
          "dozewell-simulator: --folder needs a folder that is there, found /nowhere/at/all\n", 0),
      0u);
}

}  // namespace
}  // namespace sim
