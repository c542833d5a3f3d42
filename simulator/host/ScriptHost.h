// In a host: a script that is played from its begin to its end.
#pragma once

#include <string>

#include "simulator/host/Zygote.h"
#include "simulator/script/Session.h"

namespace sim {

struct ScriptJob {
  SessionOptions options;
  std::string text;             // of the script
  double processorSeconds = 0;  // that the host may take, 0: any
  bool isSilent = false;        // nothing is said on standard error
};

// `state`: of the host before, null for the first.
nlohmann::json asJson(const ScriptJob& job, const nlohmann::json& state);

// A HostMain for such jobs. Its last message is {"restart": state}, or {"done": exit status} with
// "line", "column" and "error" for what was wrong; of one that crashes as its script expects it is
// {"checkpoint": state}.
void playScriptInHost(Session& session, const CommandTable& commands, HostEnds& ends,
                      const nlohmann::json& job);

// Plays what many scripts begin with, in a process that hosts are forked from and go on in.
void playBeginning(Session& session, const CommandTable& commands, const ScriptJob& beginning);

// Has the host end with {"restart": state} where a script ends it.
void handOverThrough(Session& session, Channel& supervisor);

}  // namespace sim
