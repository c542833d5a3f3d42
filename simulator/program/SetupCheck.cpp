#include "simulator/program/SetupCheck.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <fstream>
#include <regex>
#include <system_error>

#include "simulator/host/TemporaryFolder.h"
#include "simulator/machine/FileContent.h"
#include "simulator/machine/NumberReader.h"
#include "simulator/script/words/Script.h"
#include "simulator/serve/RequestError.h"

namespace sim {

namespace files = std::filesystem;

namespace {

std::vector<std::string> playWords(const ServeState& state, const files::path& script) {
  std::vector<std::string> words = {"dozewell-simulator", "play", "--quiet"};
  for (const files::path& extension : state.extensions)
    words.insert(words.end(), {"--tweak", extension.string()});
  if (state.extensions.empty()) words.emplace_back("--no-tweak");
  if (state.package) words.insert(words.end(), {"--package", state.package->string()});
  // What a page may not read it may not have read by another process, either.
  words.insert(words.end(), {"--folder", state.folder.string()});
  words.push_back(script.string());
  return words;
}

// What the other process does with its output and signals.
class Surroundings {
 public:
  explicit Surroundings(const files::path& output) {
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, output.c_str(), O_WRONLY | O_CREAT,
                                     0600);
    posix_spawn_file_actions_adddup2(&actions_, STDERR_FILENO, STDOUT_FILENO);
    // Signals that this process blocks would be blocked there, too.
    posix_spawnattr_init(&attributes_);
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_setsigmask(&attributes_, &none);
    posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK);
  }
  ~Surroundings() {
    posix_spawn_file_actions_destroy(&actions_);
    posix_spawnattr_destroy(&attributes_);
  }
  Surroundings(const Surroundings&) = delete;
  Surroundings& operator=(const Surroundings&) = delete;

  const posix_spawn_file_actions_t* actions() const { return &actions_; }
  const posix_spawnattr_t* attributes() const { return &attributes_; }

 private:
  posix_spawn_file_actions_t actions_;
  posix_spawnattr_t attributes_;
};

// The exit status of this program, started with these words; what it prints goes to the file.
int run(std::vector<std::string> words, const files::path& output) {
  std::vector<char*> pointers;
  pointers.reserve(words.size() + 1);
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  const Surroundings surroundings(output);
  pid_t child = 0;
  const int problem = posix_spawn(&child, "/proc/self/exe", surroundings.actions(),
                                  surroundings.attributes(), pointers.data(), environ);
  if (problem != 0) throw std::system_error(problem, std::generic_category(), "posix_spawn");
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) throw std::system_error(errno, std::generic_category(), "waitpid");
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// "/tmp/…/setup.phone:2:5: expected …"
RequestError refusal(const std::string& printed, std::size_t lines) {
  static const std::regex place(R"(setup\.phone:(\d+):(\d+): (.*))");
  std::smatch found;
  if (!std::regex_search(printed, found, place))
    return {400, "this phone does not boot: " + printed};
  const auto number = [](const std::string& digits) {
    return wholeNumber<std::size_t>(digits).value_or(0);
  };
  const std::size_t line = number(found[1]);
  if (line > lines) return {400, "this phone does not boot: " + found[3].str()};
  return {400, found[3].str(), {{"line", line}, {"column", number(found[2])}}};
}

bool saysBoot(const std::string& line) {
  try {
    const auto words = parseScriptLine(line, 1).words;
    return !words.empty() && words.front().text == "boot";
  } catch (const ScriptError&) {
    return false;  // the other phone will say what is wrong with it
  }
}

void check(const ServeState& state, const std::vector<std::string>& setup) {
  const TemporaryFolder folder;
  const files::path script = folder.path() / "setup.phone";
  std::ofstream stream(script, std::ios::binary);
  for (std::size_t index = 0; index < setup.size(); ++index) {
    if (saysBoot(setup[index]))
      throw RequestError(400, "expected the lines before boot",
                         {{"line", index + 1}, {"column", 1}});
    stream << setup[index] << '\n';
  }
  stream << "boot\n";
  stream.close();
  const files::path output = folder.path() / "output";
  if (run(playWords(state, script), output) == 0) return;
  throw refusal(fileContent(output).value_or(""), setup.size());
}

}  // namespace

std::function<void(const std::vector<std::string>&)> setupCheck(const ServeState& state) {
  return [state](const std::vector<std::string>& setup) { check(state, setup); };
}

}  // namespace sim
