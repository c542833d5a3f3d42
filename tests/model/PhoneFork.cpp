#include "tests/model/PhoneFork.h"

#include <stdexcept>

namespace model {

namespace files = std::filesystem;

namespace {

// A night takes milliseconds; whoever needs this long never ends.
constexpr double longestSeconds = 120;

// Has `to` hold what nights write as `from` does: the installed package is the same for all.
void copyWhatNightsWrite(const files::path& from, const files::path& to) {
  for (const char* folder : {"var/mobile", "var/jb/var/mobile"}) {
    files::remove_all(to / folder);
    if (!files::exists(from / folder)) continue;
    files::create_directories((to / folder).parent_path());
    files::copy(from / folder, to / folder, files::copy_options::recursive);
  }
}

}  // namespace

PhoneFork::PhoneFork(const files::path& extension, const files::path& package,
                     const std::string& beginning) {
  const files::path root = folder_.path() / "phone";
  files::create_directories(root);
  files::copy(package, root, files::copy_options::recursive);
  job_.options.script = "night.phone";
  job_.options.root = files::canonical(root);
  job_.options.extensions = {extension};
  job_.options.quiet = true;
  job_.processorSeconds = longestSeconds;
  job_.isSilent = true;
  const auto require = [](const std::string& problem) {
    if (!problem.empty()) throw std::runtime_error("as nights begin: " + problem);
  };
  // By itself first: a host that crashes can say why, what others are forked from cannot.
  require(outcomeOf(beginning));
  copyWhatNightsWrite(package, job_.options.root);
  player_.begin(job_);
  require(outcomeOf(beginning));  // it has begun then
  copyWhatNightsWrite(job_.options.root, begun_);
}

std::string PhoneFork::play(const std::string& script) {
  copyWhatNightsWrite(begun_, job_.options.root);
  return outcomeOf(script);
}

std::string PhoneFork::outcomeOf(const std::string& script) {
  job_.text = script;
  const sim::ScriptOutcome outcome = player_.play(job_);
  if (outcome.crash)
    return "line " + std::to_string(outcome.crash->line) + ": " + asText(*outcome.crash);
  if (!outcome.error.empty()) return "line " + std::to_string(outcome.line) + ": " + outcome.error;
  return outcome.status == 0 ? "" : "exit status " + std::to_string(outcome.status);
}

}  // namespace model
