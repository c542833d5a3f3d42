#include "simulator/host/CrashHandler.h"

#include <cxxabi.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <ucontext.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cmath>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>

#include "simulator/host/CrashRecord.h"
#include "simulator/host/CrashStack.h"
#include "simulator/runtime/Fatal.h"
#include "simulator/script/Session.h"

// Sanitizers reserve more memory than a limit would leave, and watch over it themselves.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define SIM_IS_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define SIM_IS_SANITIZED 1
#endif
#endif

namespace sim {
namespace {

constexpr std::size_t signalStackSize = std::size_t(256) * 1024;
constexpr std::size_t reserveSize = std::size_t(8) * 1024 * 1024;
constexpr rlim_t mostMemory = rlim_t(4) << 30;
constexpr unsigned patience = 2;  // seconds to say something in
constexpr std::uintptr_t stackMargin = std::uintptr_t(128) * 1024;

int reportPipe = -1;
const Session* watched = nullptr;
double processorLimit = 0;  // seconds
void* reserve = nullptr;    // given back when memory has run out
std::uintptr_t stackEnd = 0;
std::atomic_flag dying = ATOMIC_FLAG_INIT;
CrashRecord lastRecord;

void writeRecord() {
  const char* bytes = reinterpret_cast<const char*>(&lastRecord);
  std::size_t left = sizeof lastRecord;
  while (left > 0) {
    const ssize_t count = write(reportPipe, bytes, left);
    if (count <= 0 && errno != EINTR) return;
    if (count <= 0) continue;
    bytes += count;
    left -= std::size_t(count);
  }
}

std::uintptr_t stackPointer(const ucontext_t& context) {
#if defined(__x86_64__)
  return std::uintptr_t(context.uc_mcontext.gregs[REG_RSP]);
#else
  return context.uc_mcontext.sp;
#endif
}

void tell(CrashRecord::Kind kind, int signal, const void* address, const ucontext_t* context) {
  lastRecord.kind = kind;
  lastRecord.signal = signal;
  lastRecord.address = address;
  lastRecord.uptime = watched->phone.clock.uptime();
  lastRecord.launchedAt = watched->host.launchedAt();
  lastRecord.wallAtZero = watched->phone.clock.wallAtZero();
  lastRecord.line = watched->lineNumber;
  recordFrames(lastRecord, context);
  writeRecord();
  nameMethods(lastRecord);
  writeRecord();
}

void explain(int signal, const siginfo_t& info, const ucontext_t& context) {
  if (lastRecord.reason.front() != '\0') return;
  const auto address = std::uintptr_t(info.si_addr), pointer = stackPointer(context);
  const bool isAtEnd = pointer < stackEnd + stackMargin || address < stackEnd + stackMargin;
  if (signal == SIGSEGV && isAtEnd && address + stackMargin > pointer &&
      address < pointer + stackMargin)
    copyText(lastRecord.reason, "stack overflow");
  else if (signal == SIGABRT)
    copyText(lastRecord.reason, sim::runtime::fatalMessage());
  else if (signal == SIGXCPU)
    std::snprintf(lastRecord.reason.data(), lastRecord.reason.size(),
                  "it has taken more than %g s of processor time", processorLimit);
}

void die(int signal, siginfo_t* info, void* context) {
  if (dying.test_and_set()) _exit(1);  // while it said why
  alarm(patience);
  const auto& machine = *static_cast<const ucontext_t*>(context);
  explain(signal, *info, machine);
  const bool hasAddress = signal == SIGSEGV || signal == SIGBUS;
  tell(CrashRecord::Kind::crash, signal, hasAddress ? info->si_addr : nullptr, &machine);
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

void showWhatItDoes(int, siginfo_t*, void* context) {
  const int problem = errno;
  lastRecord.reason = {};
  tell(CrashRecord::Kind::sample, 0, nullptr, static_cast<const ucontext_t*>(context));
  errno = problem;
}

[[noreturn]] void dieFor(const char* reason) {
  copyText(lastRecord.reason, reason);
  std::abort();
}

void outOfMemory() {
  munmap(reserve, reserveSize);
  dieFor("out of memory");
}

void uncaughtException() {
  std::string reason = "terminate called";
  if (const std::type_info* type = abi::__cxa_current_exception_type()) {
    char* name = abi::__cxa_demangle(type->name(), nullptr, nullptr, nullptr);
    reason = std::string("uncaught exception ") + (name != nullptr ? name : type->name());
    try {
      throw;
    } catch (const std::exception& exception) {
      reason += std::string(": ") + exception.what();
    } catch (...) {
      // Its type is all there is to say.
    }
  }
  dieFor(reason.c_str());
}

void exited(int status, void*) {
  if (reportPipe < 0 || dying.test_and_set()) return;
  std::snprintf(lastRecord.reason.data(), lastRecord.reason.size(), "exit(%d) was called", status);
  tell(CrashRecord::Kind::crash, 0, nullptr, nullptr);
  _exit(1);
}

void prepareMemory() {
  constexpr int how = MAP_PRIVATE | MAP_ANONYMOUS;
  stack_t stack{};
  stack.ss_sp = mmap(nullptr, signalStackSize, PROT_READ | PROT_WRITE, how, -1, 0);
  stack.ss_size = signalStackSize;
  sigaltstack(&stack, nullptr);
  reserve = mmap(nullptr, reserveSize, PROT_READ | PROT_WRITE, how, -1, 0);
  rlimit limit{};
  getrlimit(RLIMIT_STACK, &limit);
  const auto here = std::uintptr_t(__builtin_frame_address(0));
  if (limit.rlim_cur != RLIM_INFINITY && limit.rlim_cur < here) stackEnd = here - limit.rlim_cur;
#ifndef SIM_IS_SANITIZED
  getrlimit(RLIMIT_DATA, &limit);
  limit.rlim_cur = std::min(limit.rlim_max, mostMemory);
  setrlimit(RLIMIT_DATA, &limit);
#endif
}

void handle(int signal, void (*handler)(int, siginfo_t*, void*)) {
  struct sigaction action {};
  action.sa_sigaction = handler;
  action.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_RESTART;
  sigaction(signal, &action, nullptr);
}

}  // namespace

void watchForCrashes(int descriptor, const Session& played) {
  reportPipe = descriptor;
  watched = &played;
  prepareMemory();
  rehearseFrames();
  for (const int each : {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT, SIGTRAP, SIGSYS, SIGXCPU})
    handle(each, die);
  handle(SIGUSR2, showWhatItDoes);
  std::set_terminate(uncaughtException);
  std::set_new_handler(outOfMemory);
  on_exit(exited, nullptr);
}

void stopWatching() {
  reportPipe = -1;
}

void crash(const std::string& reason) {
  dieFor(reason.c_str());
}

void limitProcessor(double seconds) {
  if (seconds <= 0) return;
  processorLimit = seconds;
  rlimit limit{};
  getrlimit(RLIMIT_CPU, &limit);
  limit.rlim_cur = std::min(limit.rlim_max, rlim_t(std::ceil(seconds)));
  setrlimit(RLIMIT_CPU, &limit);
}

}  // namespace sim
