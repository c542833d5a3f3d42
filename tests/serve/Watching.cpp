// GET /api/events: everything once, then what changes.
#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <memory>
#include <set>

#include "tests/serve/EventReader.h"
#include "tests/serve/RawConnection.h"
#include "tests/serve/ServedProgram.h"

namespace sim {
namespace {

TEST(Watching, BeginsWithEverything) {
  const ServedProgram program;
  EventReader page(program, "bedroom");
  const json all = page.next("snapshot").data;
  for (const char* part : {"epoch", "clock", "phone", "player", "setup", "settings", "audio",
                           "script", "journal", "scene"})
    EXPECT_TRUE(all.contains(part)) << part;
  EXPECT_EQ(all.at("page"), "bedroom");
  EXPECT_EQ(all.at("clock").at("paused"), true);
  EXPECT_EQ(all.at("phone"), (json{{"host", "running"},
                                   {"screenOn", true},
                                   {"locked", true},
                                   {"controlCenter", false},
                                   {"settings", false},
                                   {"brightness", 0.5},
                                   {"peers", 0},
                                   {"due", true},
                                   {"orientation", "portrait"}}));
  EXPECT_EQ(all.at("settings").size(), 24u);
  EXPECT_TRUE(all.at("scene").at("nodes").contains(all.at("scene").at("root")));
}

TEST(Watching, TellsWhatChanges) {
  const ServedProgram program;
  EventReader page(program);
  page.next("snapshot");
  program.command("volume 0.25");
  EXPECT_EQ(page.next("player").data.at("volume"), 0.25);
  program.command("unlock");
  EXPECT_EQ(page.next("phone").data.at("locked"), false);
  program.command("screen off");
  EXPECT_EQ(page.next("phone").data.at("screenOn"), false);
  program.command("set volumeFadeOutTime 7");
  EXPECT_EQ(page.next("settings").data, (json{{"volumeFadeOutTime", 7}}));
  program.command("set volumeFadeOutTime none");
  EXPECT_EQ(page.next("settings").data, (json{{"volumeFadeOutTime", 15}}));
}

TEST(Watching, TellsOfTheTimerWhatIsSoAndWillBe) {
  const ServedProgram program({"--no-music"});
  EventReader page(program);
  const json none = page.next("snapshot").data.at("timer");
  EXPECT_TRUE(none.at("mode").is_null());
  program.command({"playlist \"A\" 600", "bluetooth \"Pillow\"", "set onTimerEndsAirplane YES",
                   "set onTimerEndsBluetooth YES", "set onTimerEndsRunShortcut YES",
                   timerOfOneMinute});
  const auto next = [&page] { return page.next("timer").data; };
  const json set = next();
  EXPECT_EQ(set.at("mode"), "duration");
  EXPECT_EQ(set.at("endsAt"), 60.0);
  // No shortcut: there is no runner.
  EXPECT_EQ(set.at("atEnd"), (json{{{"do", "fade"}, {"seconds", 15}},
                                   {{"do", "pause"}},
                                   {{"do", "airplane"}},
                                   {{"do", "disconnect"}, {"names", {"Pillow"}}}}));
  program.command("bluetooth none");
  EXPECT_EQ(next().at("atEnd").size(), 3u);
  program.command("advance 61s");
  EXPECT_EQ(next().at("fades"), true);
  program.command("advance 60s");
  EXPECT_EQ(next(), none);
  program.command(
      {"play", "send Dozewell2Manager.sharedInstance startTimerWithMode:andValue: 1 2"});
  EXPECT_EQ(next().at("songsLeft"), 2);
}

TEST(Watching, TellsOfAFadeAndWhatFollowsItAlsoWhereNothingPlays) {
  const ServedProgram program({"--no-music"});
  const auto timer = [&program] { return EventReader(program).next("snapshot").data.at("timer"); };
  const json fade = {{"do", "fade"}, {"seconds", 15}}, airplane = {{"do", "airplane"}};
  program.command({"playlist \"A\" 600", "volume 0.5", "set onTimerEndsAirplane YES",
                   timerOfOneMinute, "pause"});
  EXPECT_EQ(timer().at("atEnd"), (json{fade, airplane}));
  program.command({"advance 61s", "play"});
  EXPECT_EQ(timer().at("fades"), true);
  program.command("pause");
  EXPECT_EQ(timer().at("fades"), true);
  EXPECT_EQ(timer().at("atEnd"), json::array({airplane}));
  program.command("advance 15s");
  EXPECT_EQ(program.value("RadiosPreferences.new.airplaneMode"), "YES");
  EXPECT_EQ(timer().at("fades"), false);
  // Restored, while the display of the volume is still suppressed.
  program.command("advance 1250ms");
  EXPECT_EQ(program.value("SBMediaController.sharedInstance.suppressHUD"), "YES");
  EXPECT_EQ(timer().at("fades"), false);
}

TEST(Watching, TellsThatADurationWaitsForTheEndOfItsSong) {
  const ServedProgram program({"--no-music"});
  program.command({"playlist \"A\" 600", "set letTheSongFinishEnabled YES", timerOfOneMinute});
  const auto timer = [&program] { return EventReader(program).next("snapshot").data.at("timer"); };
  const json before = timer();
  EXPECT_EQ(before.at("endsAt"), 60.0);
  EXPECT_EQ(before.at("endsWithSong"), true);
  EXPECT_EQ(before.at("atEnd"), json::array({{{"do", "pause"}}}));
  program.command("advance 61s");
  const json waits = timer();
  EXPECT_EQ(waits.at("mode"), "duration");
  EXPECT_EQ(waits.at("endsAt"), nullptr);
  EXPECT_EQ(waits.at("endsWithSong"), true);
}

TEST(Watching, TellsNewJournalEntriesOnce) {
  const ServedProgram program;
  EventReader page(program);
  std::size_t n = page.next("snapshot").data.at("journal").size();
  for (int times = 0; times < 5; ++times) {
    program.command("lock");
    const json entries = page.next("journal").data.at("entries");
    ASSERT_GE(entries.size(), 1u);
    for (const json& entry : entries) EXPECT_EQ(entry.at("n"), ++n);
    EXPECT_EQ(entries.front().at("text"), "user lock");
  }
}

TEST(Watching, TellsOfTheClockOnlyWhenItLeavesItsCourse) {
  const ServedProgram program;
  EventReader page(program);
  page.next("snapshot");
  program.post("/api/time", {{"speed", 60}});
  EXPECT_EQ(page.next("clock").data.at("speed"), 60.0);
  program.command("volume 0.1");
  program.command("advance 10s");
  const auto jumped = page.next("clock").data;
  EXPECT_EQ(jumped.at("uptime"), 10.0);
  EXPECT_EQ(jumped.at("speed"), 60.0);
  program.command("wall-clock +1h");
  EXPECT_NEAR(page.next("clock").data.at("wall").get<double>(),
              jumped.at("wall").get<double>() + 3600, 1e-6);
}

TEST(Watching, SendsThoseNodesOfTheSceneThatChange) {
  const ServedProgram program;
  program.command("unlock");
  EventReader page(program);
  const auto known = page.next("snapshot").data.at("scene").at("nodes").size();
  program.command({"let window UIApplication.sharedApplication.keyWindow", "let view UIView.new",
                   "send $window addSubview: $view"});
  const json added = page.next("scene").data;
  EXPECT_EQ(added.at("gone").size(), 0u);
  EXPECT_LT(added.at("nodes").size(), known + 1);
  program.command("send $view removeFromSuperview");
  EXPECT_EQ(page.next("scene").data.at("gone").size(), 1u);
}

TEST(Watching, SaysNothingWhenNothingHappens) {
  const ServedProgram program;
  EventReader page(program);
  page.next("snapshot");
  // Requests that change nothing, of which the last does: nothing else has come in between.
  for (int times = 0; times < 20; ++times) program.get("/api/settings");
  program.value("UIDevice.currentDevice.systemVersion");
  const std::size_t before = page.bytes();
  program.command("expect-playing NO");
  program.post("/api/audio-owner", {{"page", "me"}});
  const json audio = page.next("audio").data;
  EXPECT_EQ(audio, (json{{"page", "me"}}));
  EXPECT_LE(page.bytes() - before, std::string("event: audio\ndata: {\"page\":\"me\"}\n\n").size());
}

TEST(Watching, RefusesWrongNamesOfPages) {
  const ServedProgram program;
  EXPECT_EQ(program.get("/api/events?page=").status, 400);
  EXPECT_EQ(program.get("/api/events?page=a%0Ab").error(),
            "expected page to be up to 40 letters, digits and -");
  EXPECT_EQ(program.get("/api/events?page=" + std::string(41, 'a')).status, 400);
}

TEST(Watching, SuitsAHundredPages) {
  const ServedProgram program;
  std::vector<std::unique_ptr<EventReader>> pages;
  for (int count = 0; count < 100; ++count) pages.push_back(std::make_unique<EventReader>(program));
  std::set<std::string> names;
  for (const auto& page : pages) names.insert(page->next("snapshot").data.at("page"));
  EXPECT_EQ(names.size(), 100u);
  program.command("volume 0.75");
  for (const auto& page : pages) EXPECT_EQ(page->next("player").data.at("volume"), 0.75);
  pages.clear();
  EXPECT_EQ(program.command("volume 0.5").status, 200);
}

TEST(Watching, DoesNotWaitForAPageThatDoesNotRead) {
  const ServedProgram program;
  program.command("unlock");  // the lock screen would draw the titles
  RawConnection slow(program, RawConnection::Reads::slowly);
  slow.send("GET /api/events HTTP/1.1\r\nHost: " + program.host() + "\r\nAuthorization: Bearer " +
            program.token() + "\r\n\r\n");
  EventReader page(program);
  page.next("snapshot");
  // Much more than the connection and its queue hold.
  const std::string title(50'000, 'x');
  for (int count = 0; count < 120; ++count) {
    const std::string track = title + std::to_string(count);
    ASSERT_EQ(program.command("playlist \"" + track + "\" 10").status, 200);
    if (count % 20 == 0)
      page.next("player", [&track](const json& player) { return player.at("title") == track; });
  }
  // What it has missed comes as another whole.
  EXPECT_TRUE(slow.reads("event: snapshot", 2));
  EXPECT_TRUE(slow.reads("\"title\":\"" + title + "119\"", 1));
}

TEST(Watching, OfAWholeDayTakesNoMoreMemory) {
#ifdef __has_feature
#if __has_feature(address_sanitizer)
  GTEST_SKIP() << "the address sanitizer keeps what is freed, to find those who use it";
#endif
#endif
  const ServedProgram program({"--no-tweak"});
  EventReader page(program);
  page.next("snapshot");
  const auto anHourPasses = [&program, &page](int hour) {
    program.post("/api/time", {{"advance", 3600}});
    page.next("clock", [hour](const json& clock) { return clock.at("uptime") == 3600.0 * hour; });
  };
  anHourPasses(1);
  const long before = program.residentKilobytes();
  for (int hour = 2; hour <= 24; ++hour) anHourPasses(hour);
  // The journal itself grows: three lines a track, some hundred kilobytes a day.
  EXPECT_LT(program.residentKilobytes() - before, 4096);
}

TEST(Sound, IsPlayedByOnePage) {
  const ServedProgram program;
  EventReader first(program, "first");
  EXPECT_EQ(first.next("snapshot").data.at("audio"), (json{{"page", nullptr}}));
  EventReader second(program, "second");
  second.next("snapshot");
  EXPECT_EQ(program.post("/api/audio-owner", {{"page", "first"}}).asJson().at("page"), "first");
  EXPECT_EQ(program.post("/api/audio-owner", {{"page", "second"}}).asJson().at("page"), "first");
  EXPECT_EQ(second.next("audio").data.at("page"), "first");
  program.post("/api/audio-owner", {{"page", "second"}, {"take", true}});
  EXPECT_EQ(first.next("audio", [](const json& audio) { return audio.at("page") == "second"; })
                .data.at("page"),
            "second");
  program.post("/api/audio-owner", {{"page", "first"}, {"release", true}});
  EXPECT_EQ(program.post("/api/audio-owner", {{"page", "first"}}).asJson().at("page"), "second");
  program.post("/api/audio-owner", {{"page", "second"}, {"release", true}});
  EXPECT_TRUE(first.next("audio").data.at("page").is_null());
}

TEST(Sound, IsGivenUpByAPageThatGoesAway) {
  const ServedProgram program;
  EventReader staying(program, "staying");
  staying.next("snapshot");
  {
    EventReader leaving(program, "leaving");
    leaving.next("snapshot");
    program.post("/api/audio-owner", {{"page", "leaving"}});
    EXPECT_EQ(staying.next("audio").data.at("page"), "leaving");
  }
  EXPECT_TRUE(staying.next("audio").data.at("page").is_null());
}

}  // namespace
}  // namespace sim
