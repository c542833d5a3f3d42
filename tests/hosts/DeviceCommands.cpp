// The script commands of what the owner does to the phone itself.
#include "simulator/radios/Radios.h"
#include "simulator/script/Command.h"
#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

class DeviceCommands : public TestHost {
 protected:
  DeviceCommands() {
    addPlayerCommands(table);
    addRadiosCommands(table);
    addShortcutCommands(table);
    addScreenCommands(table);
    addLockScreenCommands(table);
    addControlCenterCommands(table);
  }

  // "" or the error's message. Words in single quotes stand for words in double quotes.
  std::string run(const std::string& name, const std::vector<std::string>& texts = {}) {
    std::vector<Word> words;
    for (const std::string& text : texts) {
      const bool quoted = text.starts_with('\'');
      words.push_back({quoted ? text.substr(1, text.size() - 2) : text, quoted, 1});
    }
    Arguments arguments(std::move(words), 1);
    try {
      table.find(name)->run(arguments);
      arguments.finish();
      advance(0);
    } catch (const ScriptError& error) {
      return error.what();
    }
    return "";
  }

  CommandTable table;
};

TEST_F(DeviceCommands, BluetoothNamesDevices) {
  boot();
  EXPECT_EQ(run("expect-bluetooth", {"none"}), "");
  EXPECT_NE(run("bluetooth"), "");
  EXPECT_NE(run("bluetooth", {"none", "'Car'"}), "");
  EXPECT_EQ(run("bluetooth", {"'Car'", "'none'"}), "");
  EXPECT_EQ(run("expect-bluetooth", {"'Car'", "'none'"}), "");
  EXPECT_EQ(run("expect-bluetooth", {"'none'", "'Car'"}),
            "connected devices: expected \"none\" \"Car\", found \"Car\" \"none\"");
  EXPECT_EQ(run("expect-bluetooth", {"none"}),
            "connected devices: expected none, found \"Car\" \"none\"");
}

TEST_F(DeviceCommands, AirplaneModeCanBeExpected) {
  boot();
  EXPECT_EQ(run("expect-airplane-mode", {"NO"}), "");
  Radios::current().setAirplaneMode(true);
  EXPECT_EQ(run("expect-airplane-mode", {"NO"}), "airplane mode: expected NO, found YES");
}

TEST_F(DeviceCommands, ShortcutsNeedTheirRunnerFromTheStart) {
  boot();
  EXPECT_NE(run("shortcuts", {"'Lights'"}), "");
  EXPECT_EQ(objc_getClass("RunwrightManager"), nullptr);
}

TEST_F(DeviceCommands, TheScreenIsOnOrOff) {
  boot();
  EXPECT_EQ(run("screen", {"off"}), "");
  EXPECT_FALSE((objc::send<bool, "screenIsOn">(sharedInstance("SBBacklightController"))));
  EXPECT_EQ(run("screen", {"dim"}), "expected on or off");
  EXPECT_NE(run("screen"), "");
}

TEST_F(DeviceCommands, TheLockScreensDateCanBeExpected) {
  boot();
  EXPECT_EQ(run("expect-lock-screen-date", {"none"}), "");
  EXPECT_EQ(run("lock"), "");
  EXPECT_EQ(run("expect-lock-screen-date", {"'Friday, January 1'"}), "");
  EXPECT_EQ(run("expect-lock-screen-date", {"none"}),
            "the lock screen's date: expected none, found \"Friday, January 1\"");
}

TEST_F(DeviceCommands, TheLockScreensCountdownCanBeExpected) {
  boot();
  run("lock");
  EXPECT_EQ(run("expect-lock-screen-timer", {"none"}), "");
  EXPECT_EQ(run("expect-lock-screen-timer", {"60"}),
            "the lock screen's countdown: expected 60, found none");
  EXPECT_NE(run("expect-lock-screen-timer", {"60", "within", "100"}), "");
}

TEST_F(DeviceCommands, ModulesAreExpandedAndCollapsed) {
  boot();
  EXPECT_EQ(run("module", {"expand"}), "");
  EXPECT_EQ(journal().back(),
            "user module expand \"com.apple.mediaremote.controlcenter.nowplaying\"");
  EXPECT_EQ(run("module", {"collapse", "'com.example.one'"}), "");
  EXPECT_EQ(journal().back(), "user module collapse \"com.example.one\"");
  EXPECT_EQ(run("module", {"press"}), "expected expand or collapse");
}

TEST_F(DeviceCommands, AnotherApplicationTakesOver) {
  boot();
  EXPECT_EQ(run("now-playing-app", {"com.example.radio", "'Night Talk'", "60"}), "");
  EXPECT_EQ(run("expect-track", {"'Night Talk'"}), "");
  EXPECT_EQ(Player::current().application(), "com.example.radio");
  EXPECT_NE(run("now-playing-app", {"com.example.radio", "'Night Talk'"}), "");
  EXPECT_NE(run("now-playing-app", {"com.example.radio", "'A'", "60", "'B'"}), "");
}

}  // namespace
}  // namespace sim
