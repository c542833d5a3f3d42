// What may happen in a night. Numbers that depend on the moment (the next due time, a line of the
// journal) are only found out when the command's turn comes: shrinking a night keeps it sensible.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <variant>
#include <vector>

#include "tests/model/PhoneModel.h"

namespace model {

struct Start {
  long mode;
  long value;
};
struct Cancel {};
struct Reinit {};
struct Restart {};
struct Play {};
struct Pause {};
struct Next {};
struct Previous {};
struct Seek {
  int position;  // seconds
};
struct Playlist {
  std::vector<Track> tracks;
};
struct RepeatOne {
  bool repeats;
};
struct Advance {
  Nanoseconds duration;
};
// To a moment at which something is due, or a little before or after it.
struct AdvanceToDue {
  int index;
  Nanoseconds offset;
};
struct Set {
  std::string key;
  std::optional<long> value;  // none: the default holds again
  bool isFlag;
};
struct Volume {
  float level;
};
struct WallClock {
  int distance;  // seconds
};
// The stored timer, changed behind the engine's back.
struct StoredDate {
  std::optional<int> distance;  // seconds from now
};
struct StoredTracks {
  std::optional<long> count;
};
struct Respring {
  int after;  // seconds
};
struct Kill {
  int wallMoves;  // seconds, while the host is down
  int after;      // seconds
};

using Action = std::variant<Start, Cancel, Reinit, Restart, Play, Pause, Next, Previous, Seek,
                            Playlist, RepeatOne, Advance, AdvanceToDue, Set, Volume, WallClock,
                            StoredDate, StoredTracks, Respring, Kill>;

struct Command {
  Action action;
  // The host dies as the action writes these lines of the journal, counted after each other and
  // around: as soon as there is a line, there is a death.
  std::vector<int> deaths;
};

using Night = std::vector<Command>;

// For RapidCheck; the script that a night becomes is what is worth reading.
void showValue(const Command& command, std::ostream& out);

}  // namespace model
