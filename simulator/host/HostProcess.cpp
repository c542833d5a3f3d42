#include "simulator/host/HostProcess.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <system_error>
#include <utility>

namespace sim {

HostProcess::HostProcess(Zygote& zygote, const nlohmann::json& job, const JournalFile& journal)
    : zygote_(zygote), channel_(-1), report_(-1) {
  auto [ours, theirs] = Channel::makePair();
  int pipeEnds[2];
  if (pipe2(pipeEnds, O_CLOEXEC) != 0)
    throw std::system_error(errno, std::generic_category(), "pipe");
  fcntl(pipeEnds[0], F_SETFL, O_NONBLOCK);
  channel_ = std::move(ours);
  report_ = pipeEnds[0];
  try {
    process_ = zygote.launch(job, {theirs.descriptor(), pipeEnds[1], journal.descriptor()});
  } catch (...) {
    close(pipeEnds[0]);
    close(pipeEnds[1]);
    throw;
  }
  close(pipeEnds[1]);
}

HostProcess::~HostProcess() {
  end();
  close(report_);
}

void HostProcess::signal(int number) const {
  if (process_ > 0) ::kill(process_, number);
}

void HostProcess::readReport() {
  std::array<char, 65536> piece;
  for (ssize_t count = 0; (count = read(report_, piece.data(), piece.size())) > 0;)
    reported_.append(piece.data(), std::size_t(count));
  while (reported_.size() >= sizeof(CrashRecord)) {
    CrashRecord record;
    std::memcpy(&record, reported_.data(), sizeof record);
    reported_.erase(0, sizeof record);
    (record.kind == CrashRecord::Kind::crash ? crash_ : sample_) = record;
  }
}

std::optional<CrashRecord> HostProcess::takeSample() {
  readReport();
  return std::exchange(sample_, std::nullopt);
}

HostResult HostProcess::end() {
  if (process_ <= 0) return {};
  // What has closed its channel is on its way out; this changes nothing about how.
  signal(SIGKILL);
  const Zygote::End end = zygote_.reap(process_);
  process_ = 0;
  readReport();
  return {end.status, end.processorSeconds, crash_};
}

}  // namespace sim
