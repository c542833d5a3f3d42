#include "simulator/host/EndSignals.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <system_error>

namespace sim {
namespace {

sigset_t endSignals() {
  sigset_t set;
  sigemptyset(&set);
  for (const int each : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&set, each);
  return set;
}

}  // namespace

EndSignals::EndSignals() {
  const sigset_t set = endSignals();
  pthread_sigmask(SIG_BLOCK, &set, nullptr);
  descriptor_ = signalfd(-1, &set, SFD_CLOEXEC);
  if (descriptor_ < 0) throw std::system_error(errno, std::generic_category(), "signalfd");
}

EndSignals::~EndSignals() {
  close(descriptor_);
}

int EndSignals::take(int descriptor) {
  signalfd_siginfo info{};
  return read(descriptor, &info, sizeof info) == sizeof info ? int(info.ssi_signo) : SIGTERM;
}

void EndSignals::endBy(int signal) {
  std::signal(signal, SIG_DFL);
  const sigset_t set = endSignals();
  pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
  raise(signal);
  _exit(1);
}

}  // namespace sim
