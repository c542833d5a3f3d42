#include "tests/model/PhoneFork.h"

namespace model {

namespace files = std::filesystem;

namespace {

// A night takes milliseconds; whoever needs this long never ends.
constexpr double longestSeconds = 120;

}  // namespace

PhoneFork::PhoneFork(const files::path& extension, const files::path& package) {
  const files::path root = folder_.path() / "phone";
  files::create_directories(root);
  files::copy(package, root, files::copy_options::recursive);
  job_.options.script = "night.phone";
  job_.options.root = files::canonical(root);
  job_.options.extensions = {extension};
  job_.options.quiet = true;
  job_.processorSeconds = longestSeconds;
  job_.isSilent = true;
}

std::string PhoneFork::play(const std::string& script) {
  eraseTheNightBefore();
  job_.text = script;
  const sim::ScriptOutcome outcome = player_.play(job_);
  if (outcome.crash)
    return "line " + std::to_string(outcome.crash->line) + ": " + asText(*outcome.crash);
  if (!outcome.error.empty()) return "line " + std::to_string(outcome.line) + ": " + outcome.error;
  return outcome.status == 0 ? "" : "exit status " + std::to_string(outcome.status);
}

// Only what a night can have written: the installed package is the same for all.
void PhoneFork::eraseTheNightBefore() const {
  files::remove_all(job_.options.root / "var/mobile");
  files::remove_all(job_.options.root / "var/jb/var/mobile");
}

}  // namespace model
