#include "simulator/script/Session.h"

#include <cstdio>
#include <cstdlib>

#include "simulator/script/Interrupted.h"
#include "simulator/script/ScriptFiles.h"

namespace sim {
namespace {

struct CurrentSession {
  Session* session = nullptr;
};

}  // namespace

Session::Session(const SessionOptions& givenOptions)
    : phone(givenOptions.root), host(givenOptions.extensions) {
  phone.state<CurrentSession>().session = this;
  choose(givenOptions);
}

void Session::choose(const SessionOptions& givenOptions) {
  options = givenOptions;
  phone.setRoot(options.root);
  host.setExtensions(options.extensions);
  phone.setup.playlist = options.playlist;
  phone.state<ScriptFiles>() = options.folder ? ScriptFiles::below(*options.folder)
                                              : ScriptFiles::from(options.script.parent_path());
}

Session::~Session() {
  // The objects they keep may ask for the session on their way out.
  variables = {};
  last.reset();
  phone.state<CurrentSession>().session = nullptr;
}

std::string Session::place() const {
  if (options.isServed) return notation(seconds(phone.clock.uptime())) + " s";
  return "line " + std::to_string(lineNumber);
}

void Session::checkInterruption() const {
  if (interruptionHook) interruptionHook();
  if (const std::string problem = phone.journal.problem(); !problem.empty())
    throw Interrupted(lineNumber, phone.clock.uptime(), problem);
}

Session& Session::current() {
  Session* session = Phone::current().state<CurrentSession>().session;
  if (session == nullptr) {
    std::fputs("sim::Session::current() is used outside a script\n", stderr);
    std::abort();
  }
  return *session;
}

}  // namespace sim
