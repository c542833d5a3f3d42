#include "simulator/serve/Recording.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "simulator/machine/Journal.h"

namespace sim {
namespace {

constexpr const char* endOfSetup = "boot";

std::string advanceLine(Nanoseconds uptime) {
  return "advance-to " + secondsText(uptime);
}

}  // namespace

Recording::Recording() : file_(std::tmpfile()) {
  if (file_ == nullptr) throw std::system_error(errno, std::generic_category(), "tmpfile");
}

Recording::~Recording() {
  std::fclose(file_);
}

void Recording::write(const std::string& line) {
  std::fputs((line + '\n').c_str(), file_);
}

void Recording::begin(std::string line, Nanoseconds uptime) {
  open_ = Step{std::move(line), uptime};
}

void Recording::done(Nanoseconds uptime) {
  if (open_) doneBy({open_->line}, uptime);
}

void Recording::doneBy(const std::vector<std::string>& lines, Nanoseconds uptime) {
  const auto step = std::exchange(open_, std::nullopt);
  if (!step) return;
  if (step->begun > reached_) write(advanceLine(step->begun));
  for (const std::string& line : lines) {
    write(line);
    if (setup_.empty() || setup_.back() != endOfSetup) setup_.push_back(line);
  }
  reached_ = uptime;
}

std::string Recording::asScript(Nanoseconds uptime) const {
  std::fflush(file_);
  struct stat status {};
  fstat(fileno(file_), &status);
  std::string script(std::size_t(status.st_size), '\0');
  const ssize_t count = pread(fileno(file_), script.data(), script.size(), 0);
  script.resize(count > 0 ? std::size_t(count) : 0);
  return uptime > reached_ ? script + advanceLine(uptime) + '\n' : script;
}

}  // namespace sim
