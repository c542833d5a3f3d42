// What plays, as pages see it.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include "simulator/machine/Clock.h"
#include "simulator/serve/music/MusicLibrary.h"

namespace sim {

class PlayerView {
 public:
  explicit PlayerView(const MusicLibrary& library) : library_(library) {}

  // The same as before for as long as only time passes: a playing track's position holds at the
  // uptime given with it.
  nlohmann::json now();

 private:
  struct Position {
    bool playing = false;
    Nanoseconds anchor = 0;  // playing: uptime of the track's start; else the position
    bool operator==(const Position&) const = default;
  };

  const MusicLibrary& library_;
  Position known_;
  double position_ = 0;  // of `known_`, at that uptime
  Nanoseconds uptime_ = 0;
};

}  // namespace sim
