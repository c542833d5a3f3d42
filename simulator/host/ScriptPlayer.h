// Plays scripts one after another, each on a phone of its own, through all the lives of its host.
#pragma once

#include <optional>
#include <string>

#include "simulator/host/CrashReport.h"
#include "simulator/host/HostProcess.h"
#include "simulator/host/ScriptHost.h"

namespace sim {

struct ScriptOutcome {
  int status = 0;                    // for the program to exit with
  std::string error;                 // what was wrong with the script; empty: nothing
  std::size_t line = 0, column = 0;  // where; 0: nowhere
  std::optional<CrashReport> crash;
};

class ScriptPlayer {
 public:
  // `endSignals`: a descriptor to read from, see EndSignals; below 0: none.
  explicit ScriptPlayer(int endSignals = -1) : endSignals_(endSignals) {}

  // From now on a script that begins with this one is played on a phone where that has happened
  // already. Its files are those that a phone has then: whoever calls this sees to it.
  void begin(const ScriptJob& beginning);

  // Throws EndSignal, or std::system_error when there is no host to be had.
  ScriptOutcome play(ScriptJob job);

 private:
  Zygote& zygoteFor(const std::string& script);
  std::optional<Message> lastMessage(HostProcess& host) const;
  // Writes the crash into the journal, and prints it as the host has printed the rest.
  void tell(const CrashReport& report, bool isQuiet);

  int endSignals_;
  HostMain main_ = playScriptInHost;
  std::optional<Zygote> withClasses_, withoutClasses_;
  std::optional<Zygote> begun_;  // for the first host of those that begin with the text
  std::string beginning_;
  JournalFile journal_;
};

}  // namespace sim
