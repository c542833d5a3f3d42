// The script commands of the listener and of the settings application.
#include <fstream>
#include <nlohmann/json.hpp>

#include "simulator/script/Command.h"
#include "tests/hosts/TestPreferences.h"

namespace sim {
namespace {

class Commands : public TestPreferences {
 protected:
  Commands() {
    addPlayerCommands(table);
    addPreferencesCommands(table);
  }

  // "" or the error's message.
  std::string run(const std::string& name, std::vector<Word> words) {
    const Command* command = table.find(name);
    if (command == nullptr) return "no such command";
    Arguments arguments(std::move(words), 1);
    try {
      command->run(arguments);
      advance(0);
    } catch (const ScriptError& error) {
      return error.what();
    }
    return "";
  }

  static Word plain(std::string text) { return {std::move(text), false, 1}; }
  static Word quotes(std::string text) { return {std::move(text), true, 1}; }

  CommandTable table;
};

TEST_F(Commands, APlaylistStartsWithTheHost) {
  EXPECT_EQ(run("playlist", {quotes("A"), plain("10"), plain("none"), plain("20")}), "");
  EXPECT_EQ(run("expect-playing", {plain("NO")}), "");
  boot();
  advance(0);
  EXPECT_EQ(run("expect-playing", {plain("YES")}), "");
  EXPECT_EQ(run("expect-track", {quotes("A")}), "");
  advance(10);
  EXPECT_EQ(run("expect-track", {plain("none")}), "");
  EXPECT_EQ(run("expect-playing", {plain("YES")}), "");
}

TEST_F(Commands, APlaylistOfARunningPhoneStartsAtOnce) {
  boot();
  EXPECT_EQ(run("playlist", {quotes("A"), plain("10")}), "");
  EXPECT_EQ(run("expect-playing", {plain("YES")}), "");
}

TEST_F(Commands, TracksNeedALength) {
  EXPECT_NE(run("playlist", {quotes("A")}), "");
  EXPECT_NE(run("playlist", {quotes("A"), plain("0")}), "");
  EXPECT_NE(run("playlist", {quotes("A"), plain("long")}), "");
  EXPECT_NE(run("playlist", {}), "");
}

TEST_F(Commands, PlaylistFilesAreRead) {
  const auto path = phone.root() / "night.m3u";
  std::ofstream(path) << "#EXTINF:10,Rain\nrain.mp3\n#EXTINF:bad,Sea\nsea.mp3\n";
  boot();
  EXPECT_EQ(run("playlist-file", {quotes(path)}), path.string() + ":3: bad track length \"bad\"");
  std::ofstream(path) << "#EXTINF:10,Rain\nrain.mp3\n";
  EXPECT_EQ(run("playlist-file", {quotes(path)}), "");
  EXPECT_EQ(run("expect-track", {quotes("Rain")}), "");
  std::ofstream(path) << "# nothing\n";
  EXPECT_NE(run("playlist-file", {quotes(path)}), "");
}

TEST_F(Commands, AnotherPlaylistMayBeChosenForTheWholePhone) {
  const auto path = phone.root() / "chosen.m3u";
  std::ofstream(path) << "#EXTINF:10,Chosen\nchosen.mp3\n";
  phone.setup.playlist = path;
  boot();
  EXPECT_EQ(run("playlist-file", {quotes("/nowhere/night.m3u")}), "");
  EXPECT_EQ(run("expect-track", {quotes("Chosen")}), "");
}

TEST_F(Commands, TheUserControlsTheMusic) {
  boot();
  EXPECT_NE(run("play", {}), "") << "there is no playlist yet";
  EXPECT_NE(run("seek", {plain("3")}), "") << "nothing plays yet";
  run("playlist", {quotes("A"), plain("10"), quotes("B"), plain("10")});
  run("pause", {});
  EXPECT_EQ(run("expect-playing", {plain("NO")}), "");
  run("play", {});
  run("next-track", {});
  EXPECT_EQ(run("expect-track", {quotes("B")}), "");
  run("previous-track", {});
  EXPECT_EQ(run("expect-track", {quotes("A")}), "");
  run("seek", {plain("9")});
  advance(1);
  EXPECT_EQ(run("expect-track", {quotes("B")}), "");
  run("repeat-one", {plain("YES")});
  advance(15);
  EXPECT_EQ(run("expect-track", {quotes("B")}), "");
}

TEST_F(Commands, ExpectationsNameWhatTheyFound) {
  boot();
  run("playlist", {quotes("A"), plain("10")});
  EXPECT_EQ(run("expect-playing", {plain("NO")}), "playing: expected NO, found YES");
  EXPECT_EQ(run("expect-track", {quotes("B")}), "track: expected \"B\", found \"A\"");
  run("volume", {plain("0.25")});
  EXPECT_EQ(run("expect-volume", {plain("0.5")}), "volume: expected 0.5, found 0.25");
  EXPECT_EQ(run("expect-volume", {plain("0.24"), plain("within"), plain("0.02")}), "");
}

TEST_F(Commands, TheUsersVolumeShowsTheIndicator) {
  EXPECT_EQ(run("volume", {plain("0.25")}), "");
  EXPECT_EQ(journal(), (std::vector<std::string>{"user volume 0.25", "HUD volume 0.25"}));
  EXPECT_NE(run("volume", {plain("1.5")}), "");
  EXPECT_NE(run("volume", {quotes("0.5")}), "");
}

TEST_F(Commands, SetWritesTheDomainsFile) {
  run("preferences-domain", {plain(domain)});
  EXPECT_EQ(run("set", {plain("flag"), plain("YES")}), "");
  EXPECT_EQ(run("set", {plain("integer"), plain("-12")}), "");
  EXPECT_EQ(run("set", {plain("real"), plain("0.5")}), "");
  EXPECT_EQ(run("set", {plain("text"), quotes("12")}), "");
  EXPECT_EQ(run("set", {plain("data"), plain("data"), plain("00ff")}), "");
  EXPECT_NE(run("set", {plain("bad"), plain("soon")}), "");
  EXPECT_NE(run("set", {plain("bad"), plain("data"), plain("0f0")}), "");
  EXPECT_NE(run("set", {plain("bad"), plain("data"), plain("zz")}), "");
  boot();
  EXPECT_EQ(notation(storedValue("flag")), "YES");
  EXPECT_EQ(notation(storedValue("integer")), "-12");
  EXPECT_EQ(notation(storedValue("real")), "0.5");
  EXPECT_EQ(notation(storedValue("text")), "\"12\"");
  EXPECT_EQ((objc::send<unsigned long, "length">(storedValue("data"))), 2U);
  EXPECT_FALSE(storedValue("bad"));
}

TEST_F(Commands, SetReachesARunningHost) {
  run("preferences-domain", {plain(domain)});
  boot();
  const auto preferences = open();
  static long length;
  objc::send<void, "registerInteger:default:forKey:">(preferences.get(), &length, 15L,
                                                      string("length"));
  run("set", {plain("length"), plain("40")});
  EXPECT_EQ(length, 40);
  run("set", {plain("length"), plain("none")});
  EXPECT_EQ(length, 15);
}

TEST_F(Commands, TheChosenDomainSurvivesARestart) {
  run("preferences-domain", {plain(domain)});
  const auto saved = phone.saveSurvivors();
  run("preferences-domain", {plain("com.example.other")});
  phone.restoreSurvivors(saved);
  run("set", {plain("flag"), plain("YES")});
  EXPECT_TRUE(std::filesystem::exists(file()));
}

}  // namespace
}  // namespace sim
