#include "simulator/program/Options.h"

#include <map>

namespace sim {
namespace {

const std::map<std::string, Action> actions = {
    {"play", Action::play},
    {"resume", Action::resume},
    {"fidelity", Action::fidelity},
    {"commands", Action::commands},
};

// Beside the program: where the build and the installation put it.
std::filesystem::path ownFolder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

bool asksForHelp(const std::vector<std::string>& words) {
  for (const std::string& word : words) {
    if (word == "--help" || word == "-h" || word == "help") return true;
  }
  return words.empty();
}

class Parser {
 public:
  explicit Parser(const std::vector<std::string>& words) : words_(words) {}

  Options parse() {
    const auto action = actions.find(words_.front());
    if (action == actions.end()) throw UsageError("there is no command " + words_.front());
    options_.action = action->second;
    for (at_ = 1; at_ < words_.size(); ++at_) read(words_[at_]);
    complete();
    return options_;
  }

 private:
  void read(const std::string& word) {
    if (options_.action == Action::play && word.starts_with("--"))
      readOption(word);
    else
      options_.files.emplace_back(word);
  }

  void readOption(const std::string& word) {
    if (word == "--quiet")
      options_.quiet = true;
    else if (word == "--no-tweak")
      withoutExtension_ = true;
    else if (word == "--tweak")
      options_.extensions.emplace_back(valueOf(word));
    else if (word == "--package")
      options_.package = valueOf(word);
    else if (word == "--root")
      options_.root = valueOf(word);
    else if (word == "--playlist")
      options_.playlist = valueOf(word);
    else
      throw UsageError("there is no option " + word);
  }

  const std::string& valueOf(const std::string& option) {
    if (++at_ == words_.size()) throw UsageError(option + " needs a path");
    return words_[at_];
  }

  void complete() {
    const bool takesFiles = options_.action == Action::play || options_.action == Action::resume;
    if (takesFiles && options_.files.empty()) throw UsageError("which script?");
    if (!takesFiles && !options_.files.empty())
      throw UsageError("nothing may follow, found " + options_.files.front().string());
    if (options_.root && options_.files.size() > 1)
      throw UsageError("--root is for one script: each needs a phone of its own");
    if (withoutExtension_ && !options_.extensions.empty())
      throw UsageError("--tweak and --no-tweak exclude each other");
    if (!options_.extensions.empty() || withoutExtension_) return;
    options_.extensions.push_back(ownFolder() / "Dozewell2.so");
    if (!options_.package) options_.package = ownFolder().parent_path() / "package";
  }

  const std::vector<std::string>& words_;
  std::size_t at_ = 0;
  Options options_;
  bool withoutExtension_ = false;
};

}  // namespace

Options parseOptions(const std::vector<std::string>& words) {
  if (asksForHelp(words)) return {};
  return Parser(words).parse();
}

std::string usageText() {
  return R"(usage: dozewell-simulator play [OPTIONS] FILE...
       dozewell-simulator fidelity | commands | --help

play      plays phone scripts, each against a fresh phone in virtual time, and prints what the
          phone does; docs/phone-scripts.md describes the language
fidelity  prints how faithful the simulated phone is, as Markdown
commands  prints the reference of the script language, as Markdown

  --tweak PATH     the extension to load (repeatable, in order); without it, Dozewell2.so
                   beside this program
  --no-tweak       a phone without extensions
  --package DIR    the files to install on the phone, as they lie there; without it, and without
                   the options above, the extension's own
  --root DIR       keep the phone's files there; without it, a temporary folder
  --playlist PATH  an M3U file that is played instead of those that scripts name
  --quiet          do not print the journal

Exit status: 0 every script passed, 1 one failed, 2 wrong usage.
)";
}

}  // namespace sim
