#include "simulator/program/EndSignals.h"

#include <csignal>
#include <utility>

namespace sim {
namespace {

// Sent to the thread alone, to have it end.
constexpr int enough = SIGUSR1;

sigset_t setOf(std::initializer_list<int> signals) {
  sigset_t set;
  sigemptyset(&set);
  for (const int each : signals) sigaddset(&set, each);
  return set;
}

}  // namespace

EndSignals::EndSignals(std::function<void()> whenTold)
    : thread_([whenTold = std::move(whenTold)] {
        const sigset_t awaited = setOf({SIGINT, SIGTERM, enough});
        int signal = 0;
        sigwait(&awaited, &signal);
        if (signal != enough) whenTold();
      }) {}

EndSignals::~EndSignals() {
  pthread_kill(thread_.native_handle(), enough);
  thread_.join();
}

void EndSignals::block() {
  const sigset_t set = setOf({SIGINT, SIGTERM, enough});
  pthread_sigmask(SIG_BLOCK, &set, nullptr);
}

void EndSignals::unblock() {
  const sigset_t set = setOf({SIGINT, SIGTERM, enough});
  pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
}

}  // namespace sim
