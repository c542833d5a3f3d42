// What a host died of, or what it is doing, as people read it.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <vector>

#include "simulator/host/CrashRecord.h"
#include "simulator/machine/JournalFile.h"

namespace sim {

struct CrashReport {
  std::string what;                // "Segmentation fault at 0x10"
  std::string where;               // "the hook of -[SBMediaController pause]"; empty: nowhere known
  Nanoseconds uptime = 0;          // when
  Nanoseconds ran = 0;             // since the host was launched
  std::size_t line = 0;            // of the script; 0: none
  std::vector<std::string> stack;  // innermost first
  std::vector<std::string> lines;  // the journal's last
};

// Of a host that ended with that status, as of waitpid, and left that record, if any.
CrashReport reportOf(int status, const std::optional<CrashRecord>& record,
                     const JournalFile& journal);
// The stack of a host that lives.
std::vector<std::string> stackOf(const CrashRecord& record);

// Makes of what a host has said of itself, as of RestartState, what the next one begins with after
// the crash.
void relaunchAfterCrash(nlohmann::json& state, Nanoseconds uptime,
                        const std::optional<CrashRecord>& record);

// "the host crashed: …": the journal's line.
std::string journalLine(const CrashReport& report);
// For the terminal, in several lines.
std::string asText(const CrashReport& report);
nlohmann::json asJson(const CrashReport& report);

}  // namespace sim
