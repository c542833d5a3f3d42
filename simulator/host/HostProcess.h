// One host, as the supervisor sees it: a process from its fork to its end.
#pragma once

#include <optional>
#include <string>

#include "simulator/host/Channel.h"
#include "simulator/host/CrashRecord.h"
#include "simulator/host/Zygote.h"
#include "simulator/machine/JournalFile.h"

namespace sim {

struct HostResult {
  int status = 0;  // as of waitpid
  double processorSeconds = 0;
  std::optional<CrashRecord> crash;  // what it has said of its own end
};

class HostProcess {
 public:
  // Begins the job. The zygote must outlive it. Throws std::system_error.
  HostProcess(Zygote& zygote, const nlohmann::json& job, const JournalFile& journal);
  // Ends it at once.
  ~HostProcess();
  HostProcess(const HostProcess&) = delete;
  HostProcess& operator=(const HostProcess&) = delete;

  Channel& channel() { return channel_; }
  int reportDescriptor() const { return report_; }
  void signal(int number) const;

  // Takes what the host has said of itself so far, without waiting; of what it is doing, the last.
  std::optional<CrashRecord> takeSample();
  // Once the channel is closed, or whenever it shall end: ends what is left of it, and waits.
  HostResult end();

 private:
  void readReport();

  Zygote& zygote_;
  Channel channel_;
  int report_;
  pid_t process_ = 0;  // 0: reaped
  std::string reported_;
  std::optional<CrashRecord> crash_, sample_;
};

}  // namespace sim
