#include "simulator/serve/Recording.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

namespace sim {
namespace {

constexpr const char* endOfSetup = "boot";
constexpr const char* expectation = "expect-crash ";

// As one of the commands of a `repeat`.
bool canBeOneOfSeveral(const std::string& line) {
  return line.find('#') == std::string::npos &&
         (' ' + line + ' ').find(" then ") == std::string::npos;
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
  if (step->begun > reached_) unsaved_.push_back(advanceLine(step->begun));
  for (const std::string& line : lines) {
    unsaved_.push_back(line);
    if (setup_.empty() || setup_.back() != endOfSetup) setup_.push_back(line);
  }
  reached_ = uptime;
}

void Recording::writeUnsaved() {
  for (const std::string& line : unsaved_) write(line);
  unsaved_.clear();
  reachedByFile_ = reached_;
}

void Recording::saved(Nanoseconds uptime) {
  writeUnsaved();
  saved_ = uptime;
}

void Recording::crashed(Nanoseconds uptime) {
  if (saved_ > reachedByFile_) write(advanceLine(saved_));
  reached_ = std::max(reached_, saved_);
  if (!open_) begin(advanceLine(uptime), reached_);
  doneBy({open_->line}, uptime);
  const bool isOneLine = std::all_of(unsaved_.begin(), unsaved_.end(), canBeOneOfSeveral);
  if (unsaved_.size() > 1 && isOneLine) {
    std::string all = "repeat 1 " + unsaved_.front();
    for (std::size_t index = 1; index < unsaved_.size(); ++index) all += " then " + unsaved_[index];
    unsaved_ = {all};
  }
  // A script may have said so itself.
  if (!unsaved_.back().starts_with(expectation)) unsaved_.back().insert(0, expectation);
  saved(uptime);
}

std::string Recording::asScript(Nanoseconds uptime) const {
  std::fflush(file_);
  struct stat status {};
  fstat(fileno(file_), &status);
  std::string script(std::size_t(status.st_size), '\0');
  const ssize_t count = pread(fileno(file_), script.data(), script.size(), 0);
  script.resize(count > 0 ? std::size_t(count) : 0);
  for (const std::string& line : unsaved_) script += line + '\n';
  return uptime > reached_ ? script + advanceLine(uptime) + '\n' : script;
}

}  // namespace sim
