#include "simulator/script/Session.h"

#include <cstdio>
#include <cstdlib>

#include "simulator/script/ScriptFiles.h"

namespace sim {
namespace {

Session* theCurrent = nullptr;

}  // namespace

Session::Session(const SessionOptions& givenOptions)
    : phone(givenOptions.root), host(givenOptions.extensions) {
  theCurrent = this;
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
  theCurrent = nullptr;
}

std::string Session::place() const {
  if (options.isServed) return notation(seconds(phone.clock.uptime())) + " s";
  return "line " + std::to_string(lineNumber);
}

void Session::checkInterruption() const {
  if (beforeGoingOn) beforeGoingOn();
  if (const std::string problem = phone.journal.problem(); !problem.empty())
    throw ScriptError(0, problem);
}

Session& Session::current() {
  if (theCurrent == nullptr) {
    std::fputs("sim::Session::current() is used outside a script\n", stderr);
    std::abort();
  }
  return *theCurrent;
}

}  // namespace sim
