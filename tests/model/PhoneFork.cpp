#include "tests/model/PhoneFork.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <system_error>

#include "objc/Ownership.h"
#include "simulator/script/Commands.h"
#include "simulator/script/Interpreter.h"

namespace model {
namespace {

namespace files = std::filesystem;

// Exit statuses of a host process, apart from those that the C library uses.
constexpr int wrong = 10;
constexpr int restarts = 11;

// A night takes milliseconds; whoever needs this long never ends.
constexpr unsigned longestSeconds = 120;

files::path phoneRoot(const files::path& folder, const files::path& package) {
  const files::path root = folder / "phone";
  files::create_directories(root);
  files::copy(package, root, files::copy_options::recursive);
  return files::canonical(root);
}

// Where a host that restarts leaves what the next one needs.
files::path stateFile(const files::path& root) {
  return root.parent_path() / (root.filename().string() + ".restart.json");
}

}  // namespace

PhoneFork::PhoneFork(const files::path& extension, const files::path& package)
    : session_({"night.phone", phoneRoot(folder_.path(), package), {extension}, {}, {}, true}),
      commands_(sim::allCommands()) {
  session_.host.registerClasses();
  session_.relaunch = [](const files::path&) { _exit(restarts); };
}

std::string PhoneFork::play(const std::string& script) {
  eraseTheNightBefore();
  const auto lines = sim::parseScript(script);
  int status = runHost(lines, std::nullopt);
  while (WIFEXITED(status) && WEXITSTATUS(status) == restarts)
    status = runHost(lines, stateFile(session_.phone.root()));
  if (WIFSIGNALED(status))
    return std::string("the phone stopped: ") + strsignal(WTERMSIG(status)) + '\n' + errors();
  if (WEXITSTATUS(status) == 0) return "";
  return "exit status " + std::to_string(WEXITSTATUS(status)) + '\n' + errors();
}

// Only what a night can have written: the installed package is the same for all.
void PhoneFork::eraseTheNightBefore() const {
  files::remove_all(session_.phone.file("/var/mobile"));
  files::remove_all(session_.phone.file("/var/jb/var/mobile"));
}

int PhoneFork::runHost(const Lines& script, const std::optional<files::path>& state) {
  std::fflush(nullptr);
  const pid_t child = fork();
  if (child < 0) throw std::system_error(errno, std::generic_category(), "fork");
  if (child == 0) beHost(script, state);
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) throw std::system_error(errno, std::generic_category(), "waitpid");
  }
  return status;
}

void PhoneFork::beHost(const Lines& script, const std::optional<files::path>& state) {
  alarm(longestSeconds);
  const int log = open((folder_.path() / "errors").c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0600);
  if (log < 0 || dup2(log, STDERR_FILENO) < 0) _exit(wrong);
  try {
    const objc::AutoreleasePool pool;
    sim::Interpreter interpreter(session_, commands_, script);
    if (state)
      interpreter.resume(sim::takeRestartState(*state));
    else
      interpreter.play();
    _exit(0);
  } catch (const sim::ScriptParseError& error) {
    std::fprintf(stderr, "line %zu: %s\n", error.line, error.what());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
  }
  _exit(wrong);
}

std::string PhoneFork::errors() const {
  std::ifstream file(folder_.path() / "errors");
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace model
