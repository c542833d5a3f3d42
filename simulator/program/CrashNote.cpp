#include "simulator/program/CrashNote.h"

#include <unistd.h>

#include <charconv>
#include <csignal>
#include <string_view>
#include <utility>

namespace sim {
namespace {

// What the signal handler reads: prepared before, because it may not allocate.
std::string fileName;
const std::size_t* playedLine = nullptr;

void print(std::string_view text) {
  [[maybe_unused]] const auto written = write(STDERR_FILENO, text.data(), text.size());
}

void note(int signal) {
  if (*playedLine > 0) {
    char digits[24];
    const auto end = std::to_chars(digits, digits + sizeof digits, *playedLine);
    print(fileName);
    print(":");
    print({digits, end.ptr});
    print(":1: the phone stopped here\n");
  }
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

}  // namespace

void noteScriptInCrashes(std::string script, const std::size_t& lineNumber) {
  fileName = std::move(script);
  playedLine = &lineNumber;
  std::signal(SIGABRT, note);
}

}  // namespace sim
