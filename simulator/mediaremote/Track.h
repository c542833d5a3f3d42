// One piece of music.
#pragma once

#include <optional>
#include <string>

#include "simulator/machine/Clock.h"

namespace sim {

struct Track {
  std::optional<std::string> title;  // what some players report of a stream is no title at all
  std::string artist;                // empty: unknown
  std::string album;                 // empty: unknown
  Nanoseconds length = 0;            // always more than 0 in a playlist
  bool hasNumberForTitle = false;    // some players report what is no text; then without `title`
};

// In journal notation: the quoted title, or nil.
std::string notation(const Track& track);

}  // namespace sim
