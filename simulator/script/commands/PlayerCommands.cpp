// The script commands of the person who listens: what plays, how loud, and what is heard.
#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

#include "simulator/mediaremote/AudioSystem.h"
#include "simulator/mediaremote/Player.h"
#include "simulator/mediaremote/Playlist.h"
#include "simulator/script/Command.h"
#include "simulator/script/ScriptFiles.h"
#include "simulator/springboard/SBMediaController.h"

namespace sim {
namespace {

Track takeTrack(Arguments& words) {
  Track track;
  if (words.takeKeyword("number"))
    track.hasNumberForTitle = true;
  else if (!words.takeKeyword("none"))
    track.title = words.text("a title");
  const double length = words.number("the track's seconds");
  track.length = nanoseconds(length);
  if (track.length <= 0) words.failHere("a track lasts longer than 0 seconds");
  if (words.takeKeyword("by")) track.artist = words.text("an artist");
  return track;
}

void startPlaylist(std::vector<Track> tracks) {
  Player& player = Player::current();
  player.load(std::move(tracks));
  player.playOnceBooted();
}

void playlist(Arguments& words) {
  std::vector<Track> tracks;
  do tracks.push_back(takeTrack(words));
  while (!words.atEnd());
  words.finish();
  startPlaylist(std::move(tracks));
}

std::vector<Track> tracksIn(const Word& file, const std::string& shown) {
  const auto content = scriptFiles().read(file);
  if (!content) throw PlaylistError(shown, 0, "cannot be read");
  return parsePlaylist(*content, shown);
}

void playlistFile(Arguments& words) {
  const Word named = words.word("the path of an M3U file");
  words.finish();
  const Setup& setup = Phone::current().setup;
  const std::string shown = setup.playlist ? setup.playlist->string() : scriptFiles().shown(named);
  try {
    auto tracks = setup.playlist ? readPlaylist(*setup.playlist) : tracksIn(named, shown);
    if (tracks.empty()) throw PlaylistError(shown, 0, "names no track");
    startPlaylist(std::move(tracks));
  } catch (const PlaylistError& error) {
    throw ScriptError(0, error.what());
  }
}

void nowPlayingApp(Arguments& words) {
  std::string application = words.text("the bundle identifier of an application");
  Track track = takeTrack(words);
  words.finish();
  Player::current().takeOver(std::move(application), std::move(track));
}

Player& playerWithMusic(const Arguments& words) {
  Player& player = Player::current();
  if (!player.hasPlaylist()) words.failHere("there is no playlist");
  return player;
}

void seek(Arguments& words) {
  const double position = words.number("seconds from the start of the track");
  if (position < 0) words.failHere("a track has no time before its start");
  words.finish();
  if (Player::current().track() == nullptr) words.failHere("nothing plays");
  Player::current().seek(position);
}

float takeLevel(Arguments& words) {
  const double level = words.number("a volume from 0 to 1");
  if (level < 0 || level > 1) words.failHere("a volume lies between 0 and 1");
  return float(level);
}

void volume(Arguments& words) {
  const float level = takeLevel(words);
  words.finish();
  Phone::current().journal.record("user volume " + notation(level));
  AudioSystem::current().setVolume(level);
}

void route(Arguments& words) {
  constexpr long mostSteps = 1L << 20;
  AudioRoute route{words.text("the name of a route"), 0};
  if (!words.takeKeyword("exact")) {
    const long steps = words.integer("the number of its steps, or exact");
    if (steps < 1 || steps > mostSteps) words.failHere("a route has 1 to 1048576 steps");
    route.steps = int(steps);
  }
  words.finish();
  Phone::current().journal.record("user route " + sim::quoted(route.name));
  AudioSystem::current().setRoute(std::move(route));
}

void mediaPolicy(Arguments& words) {
  const bool refuses = words.takeKeyword("refuse");
  if (!refuses && !words.takeKeyword("allow")) words.failHere("expected refuse or allow");
  words.finish();
  SBMediaController::setRefusesCommands(refuses);
}

// A press of the key, as the phone counts them.
template <int direction>
void volumeKey(Arguments& words) {
  constexpr float presses = 16;  // from silent to full
  words.finish();
  const float pressed = AudioSystem::current().volume() * presses + direction;
  const float level = std::clamp(std::round(pressed) / presses, 0.0F, 1.0F);
  Phone::current().journal.record("user volume " + notation(level));
  AudioSystem::current().setVolume(level);
}

[[noreturn]] void refusePlayer(const std::string& what, const std::string& expected,
                               const std::string& found) {
  throw ScriptError(0, what + ": expected " + expected + ", found " + found);
}

void expectVolume(Arguments& words) {
  const float level = takeLevel(words);
  const bool isTolerant = words.takeKeyword("within");
  const double tolerance = isTolerant ? words.number("a tolerance") : 0;
  words.finish();
  const float found = AudioSystem::current().volume();
  // Negated, so that a tolerance that is no number fails.
  if (!(std::abs(double(found) - double(level)) <= tolerance))
    refusePlayer("volume", notation(level), notation(found));
}

void expectPlaying(Arguments& words) {
  const bool expected = words.yesOrNo("whether music plays");
  words.finish();
  const bool found = Player::current().isPlaying();
  if (found != expected) refusePlayer("playing", notation(expected), notation(found));
}

void expectTrack(Arguments& words) {
  std::optional<std::string> expected;
  if (!words.takeKeyword("none")) expected = words.text("a title, or none");
  words.finish();
  const Track* track = Player::current().track();
  const auto found = track == nullptr ? std::nullopt : track->title;
  const auto shown = [](const auto& title) { return title ? sim::quoted(*title) : "none"; };
  if (found != expected) refusePlayer("track", shown(expected), shown(found));
}

template <auto action>
void control(Arguments& words) {
  words.finish();
  (playerWithMusic(words).*action)();
}

void addControls(CommandTable& table) {
  table.add({"now-playing-app", Stage::running, "now-playing-app BUNDLE TITLE|none|number SECONDS",
             "now-playing-app com.example.radio \"Night Talk\" 3600",
             "Another application plays one track, and the music's playlist is gone.",
             nowPlayingApp});
  table.add({"play", Stage::running, "play", "play", "The user starts the music, or goes on.",
             control<&Player::play>});
  table.add({"pause", Stage::running, "pause", "pause", "The user pauses the music.",
             control<&Player::pause>});
  table.add({"next-track", Stage::running, "next-track", "next-track",
             "The user skips to the next track; after the last one nothing plays.",
             control<&Player::nextTrack>});
  table.add({"previous-track", Stage::running, "previous-track", "previous-track",
             "The user goes back to the track before; the first track begins again.",
             control<&Player::previousTrack>});
  table.add({"seek", Stage::running, "seek SECONDS", "seek 170",
             "The user moves to a position of the track, in seconds from its start.", seek});
}

void addPolicy(CommandTable& table) {
  table.add(
      {"media-policy", Stage::running, "media-policy refuse|allow", "media-policy refuse",
       "A policy of the system refuses what the host asks of the player, until it allows it or "
       "the host ends: SBMediaController answers NO, and nothing happens.",
       mediaPolicy});
}

void addExpectations(CommandTable& table) {
  table.add({"expect-volume", Stage::any, "expect-volume LEVEL [within TOLERANCE]",
             "expect-volume 0.5 within 0.001", "The media volume is LEVEL.", expectVolume});
  table.add({"expect-playing", Stage::any, "expect-playing YES|NO", "expect-playing YES",
             "Whether music plays at this moment.", expectPlaying});
  table.add({"expect-track", Stage::any, "expect-track TITLE|none", "expect-track \"B\"",
             "The title of the current track, playing or paused; none without track or title.",
             expectTrack});
}

}  // namespace

void addPlayerCommands(CommandTable& table) {
  // Both exist before a restart's saved state is given back to them.
  Player::current();
  AudioSystem::current();
  table.add(
      {"playlist", Stage::any, "playlist TITLE|none|number SECONDS [by ARTIST] [TITLE…]",
       "playlist \"A\" 180 \"B\" 200 by \"The Band\"",
       "Loads tracks and plays the first; before boot the music starts with the host. A number "
       "is what some app might report where a title belongs.",
       playlist});
  table.add(
      {"playlist-file", Stage::any, "playlist-file PATH", "playlist-file \"night.m3u8\"",
       "Loads the tracks of an M3U playlist, a file beside the script, or of the one that the "
       "option --playlist names, and plays the first.",
       playlistFile});
  table.add({"repeat-one", Stage::any, "repeat-one YES|NO", "repeat-one YES",
             "Whether a track that ends begins again.", [](Arguments& words) {
               const bool repeats = words.yesOrNo("whether to repeat");
               words.finish();
               Player::current().setRepeatsOne(repeats);
             }});
  table.add({"repeat-all", Stage::any, "repeat-all YES|NO", "repeat-all YES",
             "Whether the first track follows the last.", [](Arguments& words) {
               const bool repeats = words.yesOrNo("whether to repeat");
               words.finish();
               Player::current().setRepeatsAll(repeats);
             }});
  table.add({"volume", Stage::any, "volume LEVEL", "volume 0.5",
             "The user sets the media volume, from 0 to 1.", volume});
  table.add(
      {"route", Stage::any, "route NAME STEPS|exact", "route \"Pillow Speaker\" 16",
       "The sound goes that way, which knows so many steps of volume from silent to full: what "
       "is set goes to the nearest one, and that is what is read back. Without this line the "
       "volume is exactly what was set.",
       route});
  table.add({"volume-up", Stage::any, "volume-up", "volume-up",
             "The user presses the key that makes the music louder by a sixteenth.", volumeKey<1>});
  table.add({"volume-down", Stage::any, "volume-down", "volume-down",
             "The user presses the key that makes the music quieter by a sixteenth.",
             volumeKey<-1>});
  addControls(table);
  addPolicy(table);
  addExpectations(table);
}

}  // namespace sim
