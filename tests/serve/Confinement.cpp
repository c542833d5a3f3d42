// What pages and their scripts reach of this machine: the session's folder, and what an extension
// itself exports.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/serve/EventReader.h"
#include "tests/serve/ServedProgram.h"

namespace sim {
namespace {

namespace files = std::filesystem;

constexpr const char* leadsElsewhere = "expected a file below the session's folder, found ";

TEST(Functions, AreThoseOfTheExtensionOnly) {
  const TestFolder folder;
  const ServedProgram program;
  const std::string proof = (folder.path() / "proof").string();
  const Answer answer =
      program.command(json{"declare system \"i*\"", "call system \"id -un > " + proof + "\""});
  EXPECT_EQ(answer.status, 400);
  EXPECT_EQ(answer.error(), "no loaded extension exports system");
  EXPECT_FALSE(files::exists(proof));
  // Of the C library, of the program itself and of what it links.
  for (const char* name : {"popen", "getpid", "exit", "dlopen", "main", "objc_getClass",
                           "dispatch_after", "MSHookMessageEx", "_exit", "write"}) {
    const std::string function = name;
    const json lines{"declare " + function + " \"i\"", "call " + function};
    EXPECT_EQ(program.command(lines).error(), "no loaded extension exports " + function);
    EXPECT_EQ(program.command("let x call " + function).error(),
              "no loaded extension exports " + function);
  }
  for (const char* name : {"environ", "stdout", "__libc_single_threaded"})
    EXPECT_EQ(program.command(std::string("expect-variable ") + name + " ^v nil").error(),
              std::string("no loaded extension exports ") + name);
  EXPECT_EQ(program.command(json{"call timeFormatted 61", "expect-last \"01:01\""}).status, 200)
      << "what the extension exports can still be called";
}

TEST(Functions, KeepTheTypesThatAreKnown) {
  const ServedProgram program;
  EXPECT_EQ(program.command("declare timeFormatted \"@*\"").error(),
            "timeFormatted has the types \"@i\"");
  EXPECT_EQ(program.command("declare timeFormatted \"@i\"").status, 200);
  EXPECT_EQ(program.command(json{"declare later \"v\"", "declare later \"vi\""}).error(),
            "later has the types \"v\"");
  program.command("respring");
  EXPECT_EQ(program.command("declare later \"vi\"").error(), "later has the types \"v\"");
}

// A folder for the session, with a way out of it, and files outside.
class Files : public testing::Test {
 protected:
  Files() {
    files::create_directories(session() / "sub");
    files::create_symlink(outside_, session() / "link.svg");
    files::create_symlink(outside_, session() / "link.actual.svg");
    files::create_symlink(folder_.path(), session() / "way");
    mkfifo((session() / "pipe.svg").c_str(), 0600);
  }

  files::path session() const { return folder_.path() / "session"; }
  std::string outside() const { return outside_; }
  bool isOutsideAsBefore() const {
    std::size_t count = 0;
    for (const auto& each : files::directory_iterator(folder_.path()))
      count += !each.path().empty();
    return contentOf(outside_) == before && count == 2;
  }

  // What leads out, or is no file.
  std::vector<std::string> names() const {
    return {outside(),      "../outside.svg",  "sub/../../outside.svg", "./../outside.svg",
            "link.svg",     "way/outside.svg", "way/new.svg",           "pipe.svg",
            "/etc/new.svg", "//outside.svg"};
  }

  static constexpr const char* before = "#EXTM3U\n#EXTINF:10,Outside\na.mp3\n";
  const TestFolder folder_;
  const std::string outside_ = folder_.write("outside.svg", before);
  const std::vector<std::string> words_ = {"--no-music", "--folder", session().string()};
};

TEST_F(Files, AreNeitherReadNorWrittenElsewhere) {
  const ServedProgram program(words_);
  for (const std::string& name : names())
    for (const char* command : {"snapshot", "expect-snapshot", "playlist-file"}) {
      const Answer answer = program.command(std::string(command) + " \"" + name + '"');
      EXPECT_EQ(answer.status, 400) << command << ' ' << name;
      EXPECT_EQ(answer.error(), leadsElsewhere + name) << command;
    }
  for (const char* name : {"", ".", "sub/"})
    EXPECT_EQ(program.command("playlist-file \"" + std::string(name) + '"')
                  .error()
                  .rfind(leadsElsewhere, 0),
              0u)
        << name;
  EXPECT_TRUE(isOutsideAsBefore());
}

TEST_F(Files, AreNotWrittenThroughALinkInPlaceOfWhatWasDrawn) {
  const ServedProgram program(words_);
  folder_.write("session/link.svg.svg", "<svg>");
  files::rename(session() / "link.svg.svg", session() / "link.svg");
  EXPECT_EQ(program.command("expect-snapshot link.svg").error(),
            std::string(leadsElsewhere) + "link.actual.svg");
  EXPECT_TRUE(isOutsideAsBefore());
}

TEST_F(Files, OfAScriptInThePageAreBoundedToo) {
  const ServedProgram program(words_);
  const std::string text = "playlist-file \"" + outside() + "\"\nboot\n";
  program.post("/api/script", {{"name", "../../a.phone"}, {"text", text}});
  const json step = program.post("/api/script/step", {{"lines", 1}}).asJson();
  EXPECT_EQ(step.at("error").at("error"), leadsElsewhere + outside());
  program.post("/api/script", {{"name", "b.phone"}, {"text", "boot\nsnapshot ../b.svg\n"}});
  const json other = program.post("/api/script/step", {{"lines", 2}}).asJson();
  EXPECT_EQ(other.at("error").at("error"), std::string(leadsElsewhere) + "../b.svg");
  EXPECT_TRUE(isOutsideAsBefore());
}

TEST_F(Files, OfASetUpAreBoundedToo) {
  const ServedProgram program(words_);
  const Answer answer =
      program.post("/api/setup", {{"lines", {"ios 15.1", "playlist-file \"" + outside() + '"'}}});
  EXPECT_EQ(answer.status, 400);
  EXPECT_EQ(answer.asJson(),
            (json{{"error", leadsElsewhere + outside()}, {"line", 2}, {"column", 15}}));
}

TEST_F(Files, StayBoundedAfterARestart) {
  const ServedProgram program(words_);
  program.command("respring");
  EXPECT_EQ(program.command("playlist-file \"" + outside() + '"').error(),
            leadsElsewhere + outside());
  program.post("/api/setup", {{"lines", json::array()}});
  EXPECT_EQ(program.command("snapshot ../x.svg").error(), std::string(leadsElsewhere) + "../x.svg");
}

TEST_F(Files, BelowTheFolderAreReadAndWritten) {
  folder_.write("session/sub/night.m3u", "#EXTINF:10,Rain\nrain.mp3\n");
  const ServedProgram program(words_);
  EXPECT_EQ(program.command({"playlist-file \"sub/night.m3u\"", "expect-track \"Rain\""}).status,
            200);
  EXPECT_EQ(program.command({"snapshot \"sub/./screen.svg\"", "snapshot screen.svg"}).status, 200);
  EXPECT_EQ(contentOf(session() / "sub/screen.svg"), contentOf(session() / "screen.svg"));
  EXPECT_EQ(files::status(session() / "screen.svg").permissions(),
            files::perms::owner_read | files::perms::owner_write);
  // Shorter than what was there.
  folder_.write("session/screen.svg", std::string(1'000'000, ' '));
  EXPECT_EQ(program.command("snapshot screen.svg").status, 200);
  EXPECT_EQ(contentOf(session() / "sub/screen.svg"), contentOf(session() / "screen.svg"));
  EXPECT_EQ(program.command("playlist-file nothing.m3u").error(), "nothing.m3u:0: cannot be read");
  EXPECT_EQ(program.command("snapshot nothing/screen.svg").error(),
            "nothing/screen.svg cannot be written");
}

TEST(SessionFolder, IsGoneWithTheProgram) {
  const ServedProgram program;
  EXPECT_EQ(program.command("snapshot here.svg").status, 200);
  EXPECT_FALSE(files::exists("here.svg"));
}

TEST(SessionFolder, MustBeThere) {
  const TestFolder folder;
  const std::string file = folder.write("file", "");
  for (const std::string& path : {file, file + "/none"}) {
    try {
      const ServedProgram program({"--no-music", "--folder", path});
      FAIL() << "it serves";
    } catch (const std::runtime_error& error) {
      EXPECT_NE(
          std::string(error.what()).find("--folder needs a folder that is there, found " + path),
          std::string::npos)
          << error.what();
    }
  }
}

TEST(Pictures, AreHandedToThePage) {
  const ServedProgram program;
  EventReader page(program);
  EXPECT_EQ(page.next("snapshot").data.at("pictures"), json::array());
  program.command({"snapshot one.png", "snapshot two.svg", "snapshot one.png"});
  const json pictures{{{"name", "one.png"}, {"n", 3}}, {{"name", "two.svg"}, {"n", 2}}};
  EXPECT_EQ(page.next("pictures", [&](const json& each) { return each == pictures; }).data,
            pictures);
  const Answer png = program.get("/api/picture?file=one.png");
  EXPECT_EQ(png.status, 200);
  EXPECT_EQ(png.header("Content-Type"), "image/png");
  EXPECT_EQ(png.header("Content-Disposition"), "attachment");
  EXPECT_EQ(png.body.substr(1, 3), "PNG");
  program.command("respring");
  EXPECT_EQ(program.get("/api/picture?file=two.svg").header("Content-Type"), "image/svg+xml");
  EventReader again(program);
  EXPECT_EQ(again.next("snapshot").data.at("pictures"), pictures);
}

TEST_F(Files, ThatAreNoPicturesAreNotHandedOut) {
  folder_.write("session/secret.m3u", before);
  const ServedProgram program(words_);
  for (const char* file : {"", "secret.m3u", "%2e%2e/outside.svg", "link.svg", "way/outside.svg",
                           "pipe.svg", "/etc/passwd%00.svg"})
    EXPECT_GE(program.get(std::string("/api/picture?file=") + file).status, 400) << file;
}

TEST(Pictures, ThatDifferFromWhatIsExpectedAreHandedOverToo) {
  const TestFolder folder;
  folder.write("screen.svg", "<svg/>");
  const ServedProgram program({"--no-music", "--folder", folder.path().string()});
  EXPECT_EQ(program.command("expect-snapshot screen.svg").status, 400);
  EXPECT_EQ(program.get("/api/picture?file=screen.actual.svg").status, 200);
  EXPECT_EQ(contentOf(folder.path() / "screen.svg"), "<svg/>");
}

}  // namespace
}  // namespace sim
