// The phone's music player, a process of its own on a phone: it plays a list of tracks in virtual
// time and goes on while the host restarts.
#pragma once

#include <cstddef>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/machine/Observed.h"
#include "simulator/machine/Phone.h"
#include "simulator/mediaremote/Track.h"

namespace sim {

inline constexpr std::string_view musicApplication = "com.apple.Music";

// Its observers are told of every change that a now-playing display would show: play, pause, track,
// seek.
class Player : public Observed {
 public:
  explicit Player(Phone& phone);
  Player(const Player&) = delete;
  Player& operator=(const Player&) = delete;

  // The player of Phone::current(), made on first use. It is a survivor of that phone.
  static Player& current();

  // Replaces the playlist, which is the music application's. Nothing plays until play().
  void load(std::vector<Track> tracks);
  // Another application, named by its bundle identifier, plays this track alone instead of what
  // was there.
  void takeOver(std::string application, Track track);
  bool hasPlaylist() const { return !tracks_.empty(); }

  // Goes on with the track, or begins the list when nothing plays. No playlist: nothing happens.
  void play();
  // play(); before the phone has booted, as soon as the host has launched.
  void playOnceBooted();
  void hostDidBoot();
  void pause();
  void togglePlayPause();
  // After the last track nothing plays, unless all are repeated. A paused player stays paused.
  void nextTrack();
  // The track before; the first track begins again.
  void previousTrack();
  // Back to "nothing playing", as when the playing application ends.
  void stop();
  // Seconds from the start of the track; held to its length, whose end begins the next track.
  void seek(double position);
  // At its end the track begins again. nextTrack() still goes on.
  void setRepeatsOne(bool repeats) { repeatsOne_ = repeats; }

  // The first track follows the last.
  void setRepeatsAll(bool repeats) { repeatsAll_ = repeats; }

  bool isPlaying() const { return playing_; }
  // nullptr when nothing plays. A paused track is still the track.
  const Track* track() const;
  // What the end of the track begins; nullptr when that is the end of the music.
  const Track* following() const;
  double position() const;  // seconds from the start of the track; 0 without a track
  // The bundle identifier of the application whose tracks these are.
  const std::string& application() const { return application_; }

 private:
  static constexpr std::size_t nothing = std::size_t(-1);

  nlohmann::json save() const;
  void restore(const nlohmann::json& saved);

  std::size_t indexAfterEnd() const { return repeatsOne_ ? index_ : index_ + 1; }
  void begin(std::size_t index, Nanoseconds when);
  void trackDidEnd();
  void scheduleEnd();
  Nanoseconds elapsed() const;

  Phone& phone_;
  std::string application_{musicApplication};
  std::vector<Track> tracks_;
  std::size_t index_ = nothing;
  bool playing_ = false;
  bool repeatsOne_ = false;
  bool repeatsAll_ = false;
  bool booted_ = false;
  bool waitsForBoot_ = false;
  Nanoseconds startedAt_ = 0;  // playing: uptime at which the track was at its start
  Nanoseconds pausedAt_ = 0;   // not playing: position within the track
  MainQueue::Ticket end_ = 0;  // the queue's entry for the end of the track
};

}  // namespace sim
