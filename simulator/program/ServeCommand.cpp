#include "simulator/program/ServeCommand.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <iostream>
#include <nlohmann/json.hpp>
#include <system_error>

#include "simulator/host/TemporaryFolder.h"
#include "simulator/machine/FileContent.h"
#include "simulator/program/EndSignals.h"
#include "simulator/program/ServingProcess.h"
#include "simulator/serve/http/Access.h"
#include "simulator/serve/http/Listener.h"

namespace sim {

namespace files = std::filesystem;

namespace {

files::path beside(const char* folder) {
  return files::read_symlink("/proc/self/exe").parent_path().parent_path() / folder;
}

std::string contentOf(const files::path& file) {
  auto content = fileContent(file);
  if (!content) throw std::system_error(errno, std::generic_category(), file.string());
  return *std::move(content);
}

// Empty: none.
std::optional<files::path> musicOf(const Options& options) {
  if (!options.music) return std::nullopt;
  const files::path folder = options.files.empty() ? beside("music") : options.files.front();
  if (files::exists(folder) && !files::is_directory(folder))
    throw std::runtime_error(folder.string() + ": expected a folder of music, found a file");
  return files::canonical(folder);
}

// Nobody else can look into the temporary folder.
files::path folderOf(const Options& options, const files::path& temporary) {
  if (options.folder) return *options.folder;
  files::create_directory(temporary / "files");
  return files::canonical(temporary / "files");
}

ServeState stateFrom(const Options& options, const Listener& listener,
                     const files::path& temporary) {
  ServeState state;
  state.listener = listener.descriptor();
  state.root = temporary / "phone";
  state.folder = folderOf(options, temporary);
  state.token = options.token ? *options.token : randomDigits(32);
  state.place = randomDigits(placeDigits);
  state.extensions = options.extensions;
  state.package = options.package;
  state.music = musicOf(options);
  state.web = files::canonical(options.web.value_or(beside("web")));
  state.epoch = randomDigits(8);
  state.paused = options.paused;
  if (options.script) {
    state.script.emplace();
    state.script->name = options.script->filename().string();
    state.script->text = contentOf(*options.script);
  }
  return state;
}

pid_t served = 0;

void passOn(int signal) {
  kill(served, signal);
}

void passOnSignals() {
  struct sigaction action {};
  action.sa_handler = passOn;
  sigaction(SIGINT, &action, nullptr);
  sigaction(SIGTERM, &action, nullptr);
  EndSignals::unblock();
}

int waitForEnd() {
  int status = 0;
  while (waitpid(served, &status, 0) < 0) {
    if (errno != EINTR) throw std::system_error(errno, std::generic_category(), "waitpid");
  }
  if (WIFEXITED(status)) return WEXITSTATUS(status);
  std::cerr << "dozewell-simulator: the phone stopped: " << strsignal(WTERMSIG(status)) << '\n';
  return 1;
}

}  // namespace

int servePhone(const Options& options) {
  const TemporaryFolder temporary;
  const Listener listener = Listener::open(options.port);
  const ServeState state = stateFrom(options, listener, temporary.path());
  std::cout.flush();
  EndSignals::block();  // none is lost between the two processes' beginnings
  served = fork();
  if (served < 0) throw std::system_error(errno, std::generic_category(), "fork");
  if (served > 0) {
    passOnSignals();
    return waitForEnd();
  }
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  _exit(beginServing(state));
}

int goOnServing(const files::path& stateFile) {
  const auto saved = nlohmann::json::parse(contentOf(stateFile));
  if (const auto fresh = saved.find("fresh"); fresh != saved.end()) {
    files::remove(stateFile);
    return beginServing(serveStateFrom(*fresh));
  }
  return continueServing(takeRestartState(stateFile));
}

}  // namespace sim
