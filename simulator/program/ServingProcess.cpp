#include "simulator/program/ServingProcess.h"

#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <functional>
#include <iostream>
#include <optional>
#include <system_error>

#include "objc/Ownership.h"
#include "simulator/program/EndSignals.h"
#include "simulator/program/PhonePackage.h"
#include "simulator/program/SetupCheck.h"
#include "simulator/serve/Api.h"
#include "simulator/serve/ServedPhone.h"
#include "simulator/serve/http/Guard.h"

namespace sim {

namespace files = std::filesystem;

namespace {

// Does not return.
void execute(const files::path& stateFile) {
  std::fflush(nullptr);
  execl("/proc/self/exe", "dozewell-simulator", "serve-on", stateFile.c_str(), nullptr);
  std::fprintf(stderr, "the phone cannot begin anew: %s\n", std::strerror(errno));
  std::abort();
}

// Looked for once: the next processes find the list beside the phone's files.
MusicLibrary libraryOf(const ServeState& state) {
  const files::path list = state.root.parent_path() / "music.json";
  if (std::ifstream known(list, std::ios::binary); known)
    return MusicLibrary(nlohmann::json::parse(known));
  if (!state.music) return {};
  MusicLibrary library(*state.music);
  if (library.files().empty())
    throw std::runtime_error(state.music->string() + ": no music to play: expected files named " +
                             musicNameEndings() + " there or in folders within");
  std::ofstream stream(list, std::ios::binary);
  stream << library.save();
  stream.close();
  if (!stream) throw std::system_error(errno, std::generic_category(), list.string());
  return library;
}

class ServingProcess {
 public:
  explicit ServingProcess(const ServeState& state)
      : listener_(Listener::adopt(state.listener)),
        access_(state.token, state.place),
        library_(libraryOf(state)),
        phone_(state, library_, inbox_,
               [this](const nlohmann::json& answer, const files::path& stateFile) {
                 leave(answer, stateFile);
               }) {
    guard(server_, listener_.port(), access_);
    addApi(router_, {inbox_, server_, access_, library_, state.web, state.root, state.folder,
                     setupCheck(state)});
    router_.serve(server_);
  }

  ServedPhone& phone() { return phone_; }

  void serve() {
    server_.start(listener_);
    endSignals_.emplace([this] { inbox_.stop(); });
    phone_.run();
    endSignals_.reset();
  }

  void printAddress() const {
    std::cout << "The phone is at http://127.0.0.1:" << listener_.port() << access_.entrance()
              << std::endl;
  }

 private:
  // Whoever connects from here on waits for the next process, and so does a signal to end.
  void leave(const nlohmann::json& answer, const files::path& stateFile) {
    constexpr std::chrono::seconds patience{1};
    server_.stopAccepting();
    inbox_.answerEarly(answer);
    server_.waitUntilAnswered(patience);
    endSignals_.reset();
    if (inbox_.isStopped()) std::_Exit(0);
    execute(stateFile);
  }

  Listener listener_;
  Access access_;
  MusicLibrary library_;
  Inbox inbox_;
  Router router_;
  HttpServer server_;
  std::optional<EndSignals> endSignals_;
  ServedPhone phone_;  // ends first: it lets the watching pages go
};

int serving(const ServeState& state, const std::function<void(ServingProcess&)>& start) {
  EndSignals::block();
  std::signal(SIGPIPE, SIG_IGN);
  const objc::AutoreleasePool pool;
  try {
    ServingProcess process(state);
    start(process);
    process.serve();
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "dozewell-simulator: " << error.what() << '\n';
    return 1;
  }
}

}  // namespace

int beginServing(const ServeState& state) {
  files::remove_all(state.root);
  files::create_directories(state.root);
  if (state.package) installPackage(*state.package, state.root);
  ServeState canonical = state;
  canonical.root = files::canonical(state.root);
  return serving(canonical, [&state](ServingProcess& process) {
    process.phone().begin();
    if (state.restarts == 0) process.printAddress();
  });
}

int continueServing(const RestartState& saved) {
  const auto survivors = nlohmann::json::parse(saved.survivors);
  ServeState state = serveStateFrom(survivors.at("serve"));
  ++state.restarts;
  return serving(state, [&saved](ServingProcess& process) { process.phone().goOn(saved); });
}

}  // namespace sim
