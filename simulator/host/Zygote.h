// The process that hosts are forked from: what all of them need has been done in it, and nothing
// else, so that a host begins in a fraction of a millisecond.
#pragma once

#include <sys/types.h>

#include <array>
#include <functional>
#include <nlohmann/json.hpp>
#include <string_view>
#include <utility>

#include "simulator/host/Channel.h"

namespace sim {

class CommandTable;
class Session;

// A host's surroundings, in its own process.
struct HostEnds {
  Channel supervisor;
  int report;  // descriptor: what a crash says of itself
};

// The life of a host, which exits the process or returns.
using HostMain = std::function<void(Session& session, const CommandTable& commands, HostEnds& ends,
                                    const nlohmann::json& job)>;

// What is done in the zygote, once for all hosts.
using HostBeginning = std::function<void(Session& session, const CommandTable& commands)>;

class Zygote {
 public:
  // Whether the stand-ins' classes are there already: see suitsRegisteredClasses().
  enum class Classes { registered, none };

  // Before the process has other threads. Throws std::system_error.
  Zygote(Classes classes, const HostMain& main, const HostBeginning& beginning = {})
      : Zygote(started(classes, main, beginning)) {}
  // Ends it, and with it the hosts that are left.
  ~Zygote();
  Zygote(const Zygote&) = delete;
  Zygote& operator=(const Zygote&) = delete;

  // The host's ends of its channel and of its report, and its journal: given to it as they are.
  using Descriptors = std::array<int, 3>;
  // Both throw std::system_error when the zygote itself is gone.
  pid_t launch(const nlohmann::json& job, const Descriptors& descriptors);

  struct End {
    int status = 0;  // as of waitpid
    double processorSeconds = 0;
  };
  // Waits for the host to end.
  End reap(pid_t host);

 private:
  using Process = std::pair<pid_t, Channel>;
  explicit Zygote(Process process) : process_(process.first), channel_(std::move(process.second)) {}
  static Process started(Classes classes, const HostMain& main, const HostBeginning& beginning);
  nlohmann::json ask(const nlohmann::json& question, const Descriptors* descriptors);

  pid_t process_;
  Channel channel_;
};

// Whether a phone whose script begins so may find the classes registered. Some of what comes before
// `boot` decides which there are, or means something else once they are there: then a host begins
// without any, which takes it some milliseconds more.
bool suitsRegisteredClasses(std::string_view script);

// In a child: ends with its parent, whatever ends that.
void endWithParent(pid_t parent);

}  // namespace sim
