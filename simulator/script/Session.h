// One script being played: what its commands share.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "simulator/foundation/invocation/Value.h"
#include "simulator/launch/Host.h"
#include "simulator/machine/Phone.h"
#include "simulator/script/values/ExportedFunctions.h"
#include "simulator/script/values/Variables.h"
#include "simulator/script/words/Script.h"

namespace sim {

struct SessionOptions {
  std::filesystem::path script;
  std::filesystem::path root;
  std::vector<std::filesystem::path> extensions;
  std::optional<std::filesystem::path> playlist;  // instead of those that the script names
  // Below it lies all that the script's commands may name; none: anywhere, relative to the script.
  std::optional<std::filesystem::path> folder;
  bool quiet = false;     // the journal is not printed
  bool isServed = false;  // its lines have no numbers that anybody sees
};

struct RestartState;

enum class HostState { off, running, dead };

// Where the host will die, found by what the journal says.
struct KillText {
  std::string pattern;  // of a whole line, * for anything
  long times = 1;       // the host dies when so many more lines have matched
};

class Session {
 public:
  explicit Session(const SessionOptions& givenOptions);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // The session of Phone::current().
  static Session& current();

  // Which phone it is, as long as nothing has happened to it.
  void choose(const SessionOptions& givenOptions);

  // Of the command that runs, for messages: "line 4"; on a served phone, whose lines have no
  // numbers that anybody sees, "12.5 s".
  std::string place() const;

  SessionOptions options;
  Phone phone;
  Host host;
  HostState state = HostState::off;

  Variables variables;
  std::optional<Value> last;  // of send, call and get
  ExportedFunctions functions;
  std::size_t journalStart = 0;                    // expectations look at this entry and later ones
  std::set<std::size_t> killPoints;                // counts of journal lines at which the host dies
  std::vector<KillText> killTexts;                 // lines of the journal at which the host dies
  std::optional<Nanoseconds> advanceUntil;         // while `advance` runs
  std::size_t lineNumber = 0;                      // of the command that runs
  std::size_t commandsDone = 0;                    // those within others, too
  std::function<void(const ScriptLine&)> runLine;  // as if it stood in the script
  // Throws ScriptParseError when the line does not begin with a command.
  std::function<void(const ScriptLine&)> requireCommand;
  // Between two of the many things that one command does. Throws what ends the command there:
  // somebody's wish, or a journal that can hold no more.
  void checkInterruption() const;
  std::function<void()> interruptionHook;  // may throw it, see Interrupted
  // Ends this process, and has the next one go on from the recorded state; does not return.
  std::function<void(const RestartState&)> handOver;
  // What the next process has to know if this one crashes from here on. Empty: a crash is the end.
  std::function<void(const RestartState&)> expectCrash;
  std::string expectsOtherEnd;  // what is wrong if the host ends in order now; empty: nothing
};

}  // namespace sim
