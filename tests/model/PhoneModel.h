// The phone around the engine, as far as the engine can tell: clocks, music, volume, settings and
// what is on the disk. All of it outlives the host process but the agenda and what is suppressed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "tests/model/Agenda.h"

namespace model {

struct Track {
  std::optional<std::string> title;
  Nanoseconds length = 0;
};

struct Line {
  Nanoseconds time = 0;
  std::string text;  // `*` stands for what the model does not say
  bool hostRuns = true;
};

// Thrown where the host dies: whatever it had not done yet is never done.
struct HostDied {};

struct Settings {
  bool volumeFadeOutEnabled = true;
  long volumeFadeOutTime = 15;
  bool letTheSongFinishEnabled = false;
  bool onTimerStartsCustomVolume = false;
  long onTimerStartsCustomVolumeValue = 15;
};

struct Persisted {
  std::optional<double> date;  // seconds since the reference date
  std::optional<long> tracks;
};

struct PhoneModel {
  Nanoseconds uptime = 0;
  double wallAtZero = 820533600.0;  // 2027-01-01 22:00:00 UTC
  Agenda agenda;

  std::vector<Line> lines;       // since the last forget()
  std::set<std::size_t> deaths;  // at so many lines
  Settings written;              // in the domain's file
  Settings settings;             // in force
  Persisted disk;
  float volume = 0.5f;
  bool indicatorSuppressed = false;
  bool hostRuns = true;

  std::vector<Track> tracks;
  std::optional<std::size_t> track;  // none: nothing plays
  bool playing = false;
  bool repeatsOne = false;
  Nanoseconds startedAt = 0;  // playing
  Nanoseconds pausedAt = 0;   // not playing: position

  double wall() const;
  void moveWall(double distance);
  void record(std::string text);  // throws HostDied
  void addAfter(Nanoseconds delay, Entry entry);

  void userSetsVolume(float level);
  void setVolume(float level);
  void hostSuppressesIndicator(bool suppress);
  void hostSetsVolume(double level);

  void load(std::vector<Track> list);
  void play();
  void pause();
  void next();
  void previous();
  void seek(double position);
  void trackEnds();
  void scheduleTrackEnd();

 private:
  Nanoseconds elapsed() const;
  void begin(std::size_t index, Nanoseconds when);
  void stop();
  void musicChanged();
  std::string shownTitle() const;
};

Nanoseconds toNanoseconds(double seconds);
double toSeconds(Nanoseconds duration);

}  // namespace model
