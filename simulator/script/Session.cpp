#include "simulator/script/Session.h"

#include <cstdio>
#include <cstdlib>

#include "simulator/script/ScriptFiles.h"

namespace sim {
namespace {

Session* theCurrent = nullptr;

}  // namespace

Session::Session(SessionOptions givenOptions)
    : options(std::move(givenOptions)), phone(options.root), host(options.extensions) {
  phone.setup.playlist = options.playlist;
  phone.state<ScriptFiles>() = options.folder ? ScriptFiles::below(*options.folder)
                                              : ScriptFiles::from(options.script.parent_path());
  theCurrent = this;
}

Session::~Session() {
  // The objects they keep may ask for the session on their way out.
  variables = {};
  last.reset();
  theCurrent = nullptr;
}

std::string Session::place() const {
  if (relaunch) return notation(seconds(phone.clock.uptime())) + " s";
  return "line " + std::to_string(lineNumber);
}

Session& Session::current() {
  if (theCurrent == nullptr) {
    std::fputs("sim::Session::current() is used outside a script\n", stderr);
    std::abort();
  }
  return *theCurrent;
}

}  // namespace sim
