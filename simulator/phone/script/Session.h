// One script being played: what its commands share.
#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "simulator/phone/Host.h"
#include "simulator/phone/Phone.h"
#include "simulator/phone/script/ExportedFunctions.h"
#include "simulator/phone/script/Value.h"
#include "simulator/phone/script/Variables.h"

namespace sim {

struct SessionOptions {
  std::filesystem::path script;
  std::filesystem::path root;
  std::vector<std::filesystem::path> extensions;
  std::optional<std::filesystem::path> playlist;  // instead of those that the script names
  bool quiet = false;                             // the journal is not printed
};

enum class HostState { off, running, dead };

class Session {
 public:
  explicit Session(SessionOptions givenOptions);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // The session of this process.
  static Session& current();

  SessionOptions options;
  Phone phone;
  Host host;
  HostState state = HostState::off;

  Variables variables;
  std::optional<Value> last;  // of send, call and get
  ExportedFunctions functions;
  std::size_t journalStart = 0;             // expectations look at this entry and later ones
  std::set<std::size_t> killPoints;         // counts of journal lines at which the host dies
  std::optional<Nanoseconds> advanceUntil;  // while `advance` runs
  std::size_t lineNumber = 0;               // of the command that runs
};

}  // namespace sim
