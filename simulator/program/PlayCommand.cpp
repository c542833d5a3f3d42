#include "simulator/program/PlayCommand.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <iostream>
#include <system_error>

#include "objc/Ownership.h"
#include "simulator/host/TemporaryFolder.h"
#include "simulator/program/CrashNote.h"
#include "simulator/program/PhonePackage.h"
#include "simulator/script/Commands.h"
#include "simulator/script/Interpreter.h"

namespace sim {
namespace {

void printEntry(const JournalEntry& entry) {
  std::cout << formatted(entry) << '\n';
}

// Plays from the start, or goes on after a restart.
int playOne(const SessionOptions& options, const RestartState* state) {
  const objc::AutoreleasePool pool;
  Session session(options);
  const CommandTable table = allCommands();
  noteScriptInCrashes(options.script.string(), session.lineNumber);
  if (!options.quiet) session.phone.journal.observe(printEntry);
  try {
    Interpreter interpreter(session, table, readScript(options.script));
    if (state == nullptr)
      interpreter.play();
    else
      interpreter.resume(*state);
    return 0;
  } catch (const ScriptParseError& error) {
    std::cerr << options.script.string() << ':' << error.line << ':' << error.column << ": "
              << error.what() << '\n';
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
  }
  return 1;
}

int waitFor(pid_t child, const std::filesystem::path& script) {
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) throw std::system_error(errno, std::generic_category(), "waitpid");
  }
  if (WIFEXITED(status)) return WEXITSTATUS(status);
  std::cerr << script.string() << ": the phone stopped: " << strsignal(WTERMSIG(status)) << '\n';
  return 1;
}

// A process of its own: classes cannot be unregistered, and an extension may stop the program.
int playInChild(const SessionOptions& options) {
  std::cout.flush();
  const pid_t child = fork();
  if (child < 0) throw std::system_error(errno, std::generic_category(), "fork");
  if (child > 0) return waitFor(child, options.script);
  std::exit(playOne(options, nullptr));
}

}  // namespace

int playScripts(const Options& options) {
  int worst = 0;
  for (const std::filesystem::path& script : options.files) {
    const TemporaryFolder temporary;
    const auto root = options.root.value_or(temporary.path() / "phone");
    std::filesystem::create_directories(root);
    if (options.package) installPackage(*options.package, root);
    worst =
        std::max(worst, playInChild({script, std::filesystem::canonical(root), options.extensions,
                                     options.playlist, options.folder, options.quiet}));
  }
  return worst;
}

int resumeScript(const std::filesystem::path& stateFile) {
  const RestartState state = takeRestartState(stateFile);
  return playOne(state.options, &state);
}

}  // namespace sim
