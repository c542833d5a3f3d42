// The host restarts; pages and what they know go on.
#include <gtest/gtest.h>

#include "tests/serve/EventReader.h"
#include "tests/serve/ServedProgram.h"

namespace sim {
namespace {

TEST(Restarts, OfTheHostKeepThePageTheTimerAndTheJournal) {
  const ServedProgram program;
  EventReader page(program, "me");
  const std::string epoch = page.next("snapshot").data.at("epoch");
  program.command({timerOfOneMinute, "advance 20s"});
  const std::string before = program.journal();
  const json answer = program.command("respring").asJson();
  EXPECT_EQ(answer, (json{{"ok", true}, {"restarts", true}, {"uptime", 20.0}, {"ran", 1}}));
  const json all = page.next("snapshot").data;
  EXPECT_EQ(program.journal().rfind(before, 0), 0u);
  EXPECT_EQ(all.at("page"), "me");
  EXPECT_NE(all.at("epoch"), epoch);
  EXPECT_EQ(all.at("clock").at("uptime"), 20.0);
  EXPECT_EQ(all.at("clock").at("paused"), true);
  EXPECT_EQ(program.value("Dozewell2Manager.sharedInstance.getTimerRemainingTime"), "40");
}

TEST(Restarts, KeepSpeedSoundAndMusic) {
  const ServedProgram program({"--no-tweak"});
  program.post("/api/time", {{"speed", 60}});
  program.post("/api/audio-owner", {{"page", "me"}});
  program.command({"volume 0.25", "advance 10s", "respring"});
  EventReader page(program, "me");
  const json all = page.next("snapshot").data;
  EXPECT_EQ(all.at("clock").at("speed"), 60.0);
  EXPECT_EQ(all.at("audio").at("page"), "me");
  EXPECT_EQ(all.at("player").at("title"), "Harbour Lights");
  EXPECT_EQ(all.at("player").at("position"), 10.0);
  EXPECT_EQ(all.at("player").at("volume"), 0.25);
}

TEST(Restarts, KeepPlainVariablesAndSayWhenOthersWereLost) {
  const ServedProgram program;
  program.command({"let size UIScreen.mainScreen.bounds.size", "let screen UIScreen.mainScreen",
                   "advance 12500ms", "respring"});
  EXPECT_EQ(program.value("$size"), "{390, 844}");
  EXPECT_EQ(program.command("get $screen").error(),
            "$screen belonged to the host and was lost in the respring at 12.5 s");
}

TEST(Restarts, BringADeadHostBack) {
  const ServedProgram program;
  EXPECT_EQ(program.command("kill").asJson().at("restarts"), true);
  EventReader page(program);
  EXPECT_EQ(page.next("snapshot").data.at("phone").at("host"), "dead");
  EXPECT_EQ(program.command("lock").error(),
            "lock needs a running host: it has died, respring first");
  EXPECT_EQ(program.command("respring").status, 200);
  EXPECT_EQ(page.next("phone").data.at("host"), "running");
  EXPECT_EQ(program.command("lock").status, 200);
}

TEST(Restarts, ComeUpOnTheLockScreen) {
  const ServedProgram program;
  const auto isLocked = [&program] {
    EventReader page(program);
    return page.next("snapshot").data.at("phone").at("locked") == true;
  };
  EXPECT_TRUE(isLocked());
  program.command("unlock");
  EXPECT_FALSE(isLocked());
  program.command("respring");
  EXPECT_TRUE(isLocked());
  EXPECT_EQ(program.get("/api/recording.phone").body, "boot\nlock\nunlock\nrespring\nlock\n");
}

TEST(Restarts, HappenWhereTheHostIsToDie) {
  const ServedProgram program;
  program.command({"set volumeFadeOutEnabled NO",
                   "kill-at \"-[SBMediaController pauseForEventSource:0]\"", timerOfOneMinute});
  EXPECT_EQ(program.command("advance 100s").asJson().at("restarts"), true);
  EXPECT_EQ(program.post("/api/time", json::object()).asJson().at("uptime"), 100.0);
}

TEST(Restarts, AnswerThoseWhoAskMeanwhile) {
  const ServedProgram program;
  std::vector<std::thread> askers;
  std::atomic<int> lost = 0;
  for (int count = 0; count < 8; ++count)
    askers.emplace_back([&program, &lost] {
      for (int times = 0; times < 20; ++times) {
        if (program.get("/api/settings").status != 200) ++lost;
      }
    });
  for (int times = 0; times < 4; ++times) program.command("respring");
  for (std::thread& asker : askers) asker.join();
  EXPECT_EQ(lost, 0);
}

TEST(SetUp, MakesAFreshPhone) {
  const ServedProgram program;
  program.command({"set volumeFadeOutTime 7", "advance 10s"});
  EXPECT_EQ(
      program.post("/api/setup", {{"lines", {"ios 16.1", "locale ar_SA"}}}).asJson().at("restarts"),
      true);
  EXPECT_EQ(program.value("UIDevice.currentDevice.systemVersion"), "\"16.1\"");
  const json setup = program.get("/api/setup").asJson();
  EXPECT_EQ(setup.at("ios"), "16.1");
  EXPECT_EQ(setup.at("locale"), "ar_SA");
  EXPECT_EQ(setup.at("lines"), (json{"ios 16.1", "locale ar_SA"}));
  EXPECT_EQ(program.post("/api/time", json::object()).asJson().at("uptime"), 0.0);
  const std::string recording = program.get("/api/recording.phone").body;
  EXPECT_EQ(recording, "set volumeFadeOutTime 7\nios 16.1\nlocale ar_SA\nboot\nlock\n");
  program.post("/api/setup", {{"lines", json::array()}, {"settings", "default"}});
  EXPECT_EQ(program.get("/api/recording.phone").body, "boot\nlock\n");
}

TEST(SetUp, WithAMisspeltNameIsRefused) {
  const ServedProgram program;
  const Answer answer =
      program.post("/api/setup", {{"lines", {"ios 16.1", "missing SBMediaControler"}}});
  EXPECT_EQ(answer.status, 400);
  EXPECT_EQ(answer.asJson(), (json{{"error",
                                    "there is no class SBMediaControler to leave out; did you mean "
                                    "\"SBMediaController\"?"},
                                   {"line", 2},
                                   {"column", 9}}));
}

TEST(SetUp, OutlivesARespring) {
  const ServedProgram program;
  program.post("/api/setup", {{"lines", {"ios 16.1", "missing SBVolumeControl"}}});
  program.command("respring");
  EXPECT_EQ(program.value("UIDevice.currentDevice.systemVersion"), "\"16.1\"");
  EXPECT_EQ(program.command("get SBVolumeControl.class").status, 400);
}

TEST(SetUp, IsTriedOnAnotherPhoneFirst) {
  const ServedProgram program;
  program.command("advance 10s");
  const Answer wrong = program.post("/api/setup", {{"lines", {"ios 16.1", "haptics 3"}}});
  EXPECT_EQ(wrong.status, 400);
  EXPECT_EQ(wrong.asJson(),
            (json{{"error", "expected a level from 0 to 2, found 3"}, {"line", 2}, {"column", 9}}));
  EXPECT_EQ(program.post("/api/setup", {{"lines", {"# no harm", " boot"}}}).asJson(),
            (json{{"error", "expected the lines before boot"}, {"line", 2}, {"column", 1}}));
  EXPECT_EQ(program.post("/api/setup", {{"lines", {"lock"}}}).error(), "lock belongs after boot");
  EXPECT_EQ(program.post("/api/setup", {{"lines", json::array()}, {"settings", "mine"}}).error(),
            "expected settings to be \"keep\" or \"default\"");
  EXPECT_EQ(program.post("/api/time", json::object()).asJson().at("uptime"), 10.0);
}

bool suits(const json& value, const std::string& type) {
  if (type == "bool") return value.is_boolean();
  if (type == "integer") return value.is_number_integer();
  if (type == "real") return value.is_number_float();
  return type == "text" && value.is_null();
}

TEST(Settings, AreWordedForPeople) {
  const ServedProgram program;
  program.command({"set enabledModes 2", "set onTimerEndsBluetoothDeviceName \"Pillow\""});
  const json all = program.get("/api/settings").asJson();
  EXPECT_EQ(all.size(), 24u);
  std::map<std::string, json> values;
  for (const json& each : all) {
    EXPECT_FALSE(each.at("label").get<std::string>().empty()) << each;
    EXPECT_FALSE(each.at("group").get<std::string>().empty()) << each;
    EXPECT_TRUE(suits(each.at("default"), each.at("type"))) << each;
    values[each.at("key")] = each.at("value");
  }
  EXPECT_EQ(values.at("enabledModes"), 2);
  EXPECT_EQ(values.at("onTimerEndsBluetoothDeviceName"), "Pillow");
}

}  // namespace
}  // namespace sim
