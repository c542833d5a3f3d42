#include "simulator/program/Options.h"

#include <cstdlib>
#include <map>

#include "simulator/machine/NumberReader.h"

namespace sim {
namespace {

const std::map<std::string, Action> actions = {
    {"play", Action::play},         {"serve", Action::serve},       {"fidelity", Action::fidelity},
    {"commands", Action::commands}, {"--version", Action::version},
};

constexpr std::size_t longestToken = 200;

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
    const bool takesOptions = options_.action == Action::play || options_.action == Action::serve;
    if (takesOptions && word.starts_with("--"))
      readOption(word);
    else
      options_.files.emplace_back(word);
  }

  void readOption(const std::string& word) {
    const bool isKnown =
        readCommonOption(word) ||
        (options_.action == Action::play ? readPlayOption(word) : readServeOption(word));
    if (!isKnown) throw UsageError("there is no option " + word);
  }

  bool readCommonOption(const std::string& word) {
    if (word == "--no-tweak")
      withoutExtension_ = true;
    else if (word == "--tweak")
      options_.extensions.emplace_back(valueOf(word));
    else if (word == "--slice")
      options_.slice = sliceFrom(valueOf(word));
    else if (word == "--package")
      options_.package = folderFrom(word, valueOf(word));
    else if (word == "--folder")
      options_.folder = folderFrom(word, valueOf(word));
    else
      return false;
    return true;
  }

  bool readPlayOption(const std::string& word) {
    if (word == "--quiet")
      options_.quiet = true;
    else if (word == "--root")
      options_.root = valueOf(word);
    else if (word == "--playlist")
      options_.playlist = valueOf(word);
    else if (word == "--limit")
      options_.limit = secondsFrom(valueOf(word));
    else
      return false;
    return true;
  }

  bool readServeOption(const std::string& word) {
    if (word == "--port")
      options_.port = portFrom(valueOf(word));
    else if (word == "--web")
      options_.web = valueOf(word);
    else if (word == "--script")
      options_.script = valueOf(word);
    else if (word == "--no-music")
      options_.music = false;
    else if (word == "--paused")
      options_.paused = true;
    else if (word == "--token")
      options_.token = tokenFrom(word, valueOf(word));
    else
      return false;
    return true;
  }

  static int portFrom(const std::string& word) {
    const auto port = wholeNumber<int>(word);
    if (!port || *port < 0 || *port > 65535)
      throw UsageError("--port needs a number from 0 to 65535, found " + word);
    return *port;
  }

  static double secondsFrom(const std::string& word) {
    double seconds = -1;
    const char* end = word.data() + word.size();
    const auto result = std::from_chars(word.data(), end, seconds);
    if (result.ec != std::errc() || result.ptr != end || !(seconds >= 0 && seconds <= 1e9))
      throw UsageError("--limit needs a number of seconds, found " + word);
    return seconds;
  }

  static macho::Architecture sliceFrom(const std::string& word) {
    for (const macho::Architecture& each : {macho::arm64, macho::arm64e})
      if (each.name() == word) return each;
    throw UsageError("--slice needs arm64 or arm64e, found " + word);
  }

  static std::filesystem::path folderFrom(const std::string& option, const std::string& word) {
    if (!std::filesystem::is_directory(word))
      throw UsageError(option + " needs a folder that is there, found " + word);
    return std::filesystem::canonical(word);
  }

  // What stands in an address and in a cookie as it is.
  static std::string tokenFrom(const std::string& source, const std::string& word) {
    constexpr std::string_view allowed =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~";
    if (word.empty() || word.size() > longestToken ||
        word.find_first_not_of(allowed) != std::string::npos)
      throw UsageError(source + " needs up to " + std::to_string(longestToken) +
                       " letters, digits and -._~");
    return word;
  }

  const std::string& valueOf(const std::string& option) {
    if (++at_ == words_.size()) throw UsageError(option + " needs a value");
    return words_[at_];
  }

  void complete() {
    requireFiles();
    // Instead of --token, which everybody on the machine sees in the list of its processes.
    if (const char* token = std::getenv("DOZEWELL_TOKEN");
        token != nullptr && options_.action == Action::serve && !options_.token)
      options_.token = tokenFrom("DOZEWELL_TOKEN in the environment", token);
    if (options_.root && options_.files.size() > 1)
      throw UsageError("--root is for one script: each needs a phone of its own");
    if (withoutExtension_ && !options_.extensions.empty())
      throw UsageError("--tweak and --no-tweak exclude each other");
    if (!options_.extensions.empty() || withoutExtension_) return;
    options_.extensions.push_back(ownFolder() / "Dozewell2.so");
    if (!options_.package) options_.package = ownFolder().parent_path() / "package";
  }

  void requireFiles() const {
    const std::size_t count = options_.files.size();
    switch (options_.action) {
      case Action::play:
        if (count == 0) throw UsageError("which script?");
        return;
      case Action::serve:
        if (count > 1)
          throw UsageError("one folder of music only, found " + options_.files[1].string() +
                           ", too");
        if (count == 1 && !options_.music)
          throw UsageError("a folder of music and --no-music exclude each other");
        return;
      default:
        if (count > 0)
          throw UsageError("nothing may follow, found " + options_.files.front().string());
    }
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
  return R"(usage: dozewell-simulator serve [OPTIONS] [FOLDER]
       dozewell-simulator play [OPTIONS] FILE...
       dozewell-simulator fidelity | commands | --version | --help

serve     a phone in the browser, on this machine only, that plays the music of the folder; prints
          its address, which holds a secret: nobody is let in without it
play      plays phone scripts, each against a fresh phone in virtual time, and prints what the
          phone does; docs/phone-scripts.md describes the language
fidelity  prints how faithful the simulated phone is, as Markdown
commands  prints the reference of the script language, as Markdown

  --tweak PATH     the extension to load (repeatable, in order); without it, Dozewell2.so
                   beside this program. Where the processor is aarch64 it may be a library for
                   phones (arm64, arm64e or both), as its package brings it
  --slice NAME     arm64 or arm64e, which of a library for phones to load; without it, arm64e where
                   the processor can authenticate pointers
  --no-tweak       a phone without extensions
  --package DIR    the files to install on the phone, as they lie there, for example what a phone's
                   package was unpacked to; without it, and without the options above, the
                   extension's own. A library for phones among them is loaded only if --tweak names
                   it
  --folder DIR     scripts read and write files below this folder only; without it, `play` takes
                   any file, relative to the script, and `serve` a folder that is gone at the end

To serve:
  --port N         listen there; without it, at 8420 or the next one that is free
  --script FILE    begin with this phone script, to be played step by step
  --no-music       a phone with nothing to play
  --paused         time stands still until somebody starts it
  --token TEXT     the secret in the address, for scripts and for pages that are to go on when
                   this program is started again; others on this machine see it in the list of
                   processes, but not if it is given in the environment as DOZEWELL_TOKEN; without
                   both, a new one at each start
  --web DIR        the page's files; without it, those beside this program

To play:
  --root DIR       keep the phone's files there; without it, a temporary folder
  --playlist PATH  an M3U file that is played instead of those that scripts name
  --quiet          do not print the journal
  --limit SECONDS  the processor time that one script may take, with all restarts of its host: 60
                   without it, 0 for any; a script that takes more has failed

Exit status: 0 every script passed, 1 one failed, 2 wrong usage.
)";
}

}  // namespace sim
