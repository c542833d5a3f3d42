#include "simulator/program/ServingProcess.h"

#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iostream>
#include <thread>

#include "objc/Ownership.h"
#include "simulator/program/PhonePackage.h"
#include "simulator/program/SetupCheck.h"
#include "simulator/serve/Api.h"
#include "simulator/serve/ServedPhone.h"
#include "simulator/serve/http/Guard.h"

namespace sim {

namespace files = std::filesystem;

namespace {

sigset_t endSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGINT);
  sigaddset(&signals, SIGTERM);
  return signals;
}

// Does not return.
void execute(const files::path& stateFile) {
  std::fflush(nullptr);
  execl("/proc/self/exe", "dozewell-simulator", "serve-on", stateFile.c_str(), nullptr);
  std::fprintf(stderr, "the phone cannot begin anew: %s\n", std::strerror(errno));
  std::abort();
}

class ServingProcess {
 public:
  explicit ServingProcess(const ServeState& state)
      : listener_(Listener::adopt(state.listener)),
        library_(state.music),
        phone_(state, library_, inbox_,
               [this](const nlohmann::json& answer, const files::path& stateFile) {
                 inbox_.answerEarly(answer);
                 server_.waitUntilAnswered(std::chrono::seconds(1));
                 execute(stateFile);
               }) {
    guard(server_, listener_.port());
    addApi(router_, {inbox_, server_, library_, state.web, setupCheck(state)});
    router_.serve(server_);
  }

  ServedPhone& phone() { return phone_; }

  void serve() {
    server_.start(listener_);
    std::thread ender([this] {
      const sigset_t signals = endSignals();
      int signal = 0;
      sigwait(&signals, &signal);
      inbox_.stop();
    });
    phone_.run();
    ender.join();
  }

  void printAddress() const {
    std::cout << "The phone is at http://127.0.0.1:" << listener_.port() << "/" << std::endl;
  }

 private:
  Listener listener_;
  MusicLibrary library_;
  Inbox inbox_;
  Router router_;
  HttpServer server_;
  ServedPhone phone_;  // ends first: it lets the watching pages go
};

int serving(const ServeState& state, const std::function<void(ServingProcess&)>& start) {
  blockEndSignals();
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

void blockEndSignals() {
  const sigset_t signals = endSignals();
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

void unblockEndSignals() {
  const sigset_t signals = endSignals();
  pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
}

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
