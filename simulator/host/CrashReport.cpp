#include "simulator/host/CrashReport.h"

#include <sys/wait.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <nlohmann/json.hpp>

#include "simulator/host/ElfSymbols.h"
#include "simulator/machine/Journal.h"

namespace sim {
namespace {

constexpr std::size_t journalLines = 10;
constexpr std::size_t longestName = 160;
// What the system maps lies above it, elsewhere in each process: an address there says nothing.
constexpr std::uintptr_t lowestPlace = std::uintptr_t(1) << 32;
constexpr const char* again = ", again and again";

std::string hexadecimal(std::size_t number) {
  std::array<char, 24> digits;
  std::snprintf(digits.data(), digits.size(), "0x%zx", number);
  return digits.data();
}

std::string imageName(const CrashRecord::Frame& frame) {
  return std::filesystem::path(frame.image.data()).filename().string();
}

// Of those that end a process, and of the handler's own.
bool onlyEnds(const CrashRecord::Frame& frame) {
  const std::string image = imageName(frame);
  return image.starts_with("libc.so") || image.starts_with("libstdc++.so") ||
         image.starts_with("libc++");
}

bool isPartOfEnding(const std::string& function) {
  for (const char* part : {"runtime::fatal", "unrecognizedSelector", "raiseException",
                           "sim::crash(", "::dieFor(", "uncaughtException()", "outOfMemory()",
                           "::exited(", "::tell(", "::recordFrames(", "__clang_call_terminate"})
    if (function.find(part) != std::string::npos) return true;
  return false;
}

class Stack {
 public:
  explicit Stack(const CrashRecord& record) : record_(record) {
    for (std::size_t index = 0; index < record.frameCount; ++index)
      functions_.push_back(functionOf(record.frames[index], index > 0));
    while (first_ < functions_.size() &&
           (onlyEnds(record.frames[first_]) || isPartOfEnding(functions_[first_])))
      ++first_;
    if (first_ == functions_.size()) first_ = 0;
  }

  // What calls itself again and again is one line.
  std::vector<std::string> texts() const {
    std::vector<std::string> all;
    std::string before;
    for (std::size_t index = first_; index < functions_.size(); ++index) {
      const CrashRecord::Frame& frame = record_.frames[index];
      std::string text = frame.method.front() == '\0' ? functions_[index] : methodOf(frame);
      if (text.size() > longestName) text = text.substr(0, longestName) + "…";
      if (text.empty()) text = "code without a name";
      if (text == before) {
        if (!all.back().ends_with(again)) all.back() += again;
        continue;
      }
      before = text;
      all.push_back(text + "  (" + imageName(frame) + " + " + hexadecimal(frame.offset) + ')');
    }
    return all;
  }

  std::string method() const {
    for (std::size_t index = first_; index < functions_.size(); ++index)
      if (record_.frames[index].method.front() != '\0') return methodOf(record_.frames[index]);
    return "";
  }

 private:
  static std::string methodOf(const CrashRecord::Frame& frame) {
    return (frame.isHook ? "the hook of " : "") + std::string(frame.method.data());
  }

  std::string functionOf(const CrashRecord::Frame& frame, bool isReturn) {
    const auto known = images_.try_emplace(frame.image.data(), frame.image.data()).first;
    std::string name = known->second.functionAt(frame.offset - (isReturn ? 1 : 0));
    return name.empty() ? demangled(frame.symbol.data()) : name;
  }

  const CrashRecord& record_;
  std::map<std::string, ElfSymbols> images_;
  std::vector<std::string> functions_;
  std::size_t first_ = 0;  // behind those that say nothing
};

std::string described(int status) {
  if (WIFSIGNALED(status)) return strsignal(WTERMSIG(status));
  return "it ended with status " + std::to_string(WEXITSTATUS(status));
}

std::string described(const CrashRecord& record, int status) {
  if (record.reason.front() != '\0') return record.reason.data();
  const std::string name = record.signal == 0 ? described(status) : strsignal(record.signal);
  const auto place = reinterpret_cast<std::uintptr_t>(record.address);
  const bool hasPlace = place != 0 || record.signal == SIGSEGV;
  return hasPlace && place < lowestPlace ? name + " at " + hexadecimal(place) : name;
}

}  // namespace

CrashReport reportOf(int status, const std::optional<CrashRecord>& record,
                     const JournalFile& journal) {
  CrashReport report;
  const std::size_t count = journal.size();
  journal.visit(count - std::min(count, journalLines), [&report](const JournalEntry& entry) {
    report.uptime = entry.time;
    report.lines.push_back(formatted(entry));
    return true;
  });
  report.what = described(status);
  if (!record) return report;
  const Stack stack(*record);
  report.what = described(*record, status);
  report.where = stack.method();
  report.uptime = record->uptime;
  report.ran = record->uptime - record->launchedAt;
  report.line = record->line;
  report.stack = stack.texts();
  return report;
}

std::vector<std::string> stackOf(const CrashRecord& record) {
  return Stack(record).texts();
}

void relaunchAfterCrash(nlohmann::json& state, Nanoseconds uptime,
                        const std::optional<CrashRecord>& record) {
  state["uptime"] = state["relaunchAt"] = uptime;
  state["advanceUntil"] = nullptr;
  if (record) state["wallAtZero"] = record->wallAtZero;
}

std::string journalLine(const CrashReport& report) {
  return "the host crashed: " + report.what + (report.where.empty() ? "" : " in " + report.where);
}

std::string asText(const CrashReport& report) {
  std::string text = journalLine(report) + "\n  at " + notation(seconds(report.uptime)) +
                     " s, after it had run for " + notation(seconds(report.ran)) + " s\n";
  if (!report.stack.empty()) text += "stack:\n";
  for (const std::string& each : report.stack) text += "  " + each + '\n';
  if (!report.lines.empty()) text += "the journal's last lines:\n";
  for (const std::string& each : report.lines) text += "  " + each + '\n';
  return text;
}

nlohmann::json asJson(const CrashReport& report) {
  return {{"what", report.what},        {"where", report.where}, {"uptime", seconds(report.uptime)},
          {"ran", seconds(report.ran)}, {"stack", report.stack}, {"journal", report.lines}};
}

}  // namespace sim
