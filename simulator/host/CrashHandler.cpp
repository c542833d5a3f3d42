#include "simulator/host/CrashHandler.h"

#include <cxxabi.h>
#include <dlfcn.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <ucontext.h>
#include <unistd.h>
#include <unwind.h>

#include <algorithm>
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

#include "objc/runtime.h"
#include "simulator/host/CrashRecord.h"
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
constexpr std::size_t mostFrames = 1'000'000;
constexpr std::uintptr_t stackMargin = std::uintptr_t(128) * 1024;

int reportPipe = -1;
const Session* watched = nullptr;
double processorLimit = 0;  // seconds
void* reserve = nullptr;    // given back when memory has run out
std::uintptr_t stackEnd = 0;
std::atomic_flag dying = ATOMIC_FLAG_INIT;
CrashRecord lastRecord;
using Frames = decltype(CrashRecord::frames);
using Beginnings = std::array<const void*, std::tuple_size_v<Frames>>;

template <std::size_t size>
void copy(std::array<char, size>& place, const char* text) {
  std::snprintf(place.data(), size, "%s", text);
}

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

#if defined(__x86_64__)
std::uintptr_t programCounter(const ucontext_t& context) {
  return std::uintptr_t(context.uc_mcontext.gregs[REG_RIP]);
}
std::uintptr_t stackPointer(const ucontext_t& context) {
  return std::uintptr_t(context.uc_mcontext.gregs[REG_RSP]);
}
#else
std::uintptr_t programCounter(const ucontext_t& context) {
  return context.uc_mcontext.pc;
}
std::uintptr_t stackPointer(const ucontext_t& context) {
  return context.uc_mcontext.sp;
}
#endif

// Of the frames of this thread those below the signal's handler; of very many the innermost, and
// where it all began.
struct Walk {
  static constexpr std::size_t inner = 16, outer = std::tuple_size_v<Frames> - inner;
  std::uintptr_t stopped;  // where the signal came; 0: anywhere
  std::array<void*, inner> first;
  std::array<void*, outer> last;  // in turn
  std::size_t count;

  static _Unwind_Reason_Code take(_Unwind_Context* context, void* data) {
    Walk& walk = *static_cast<Walk*>(data);
    const std::uintptr_t address = _Unwind_GetIP(context);
    if (address == 0) return _URC_END_OF_STACK;
    // A call into nowhere leaves no more than where it came from.
    if (address == walk.stopped) walk.count = 0;
    auto* place = reinterpret_cast<void*>(address);
    if (walk.count < inner)
      walk.first[walk.count] = place;
    else
      walk.last[(walk.count - inner) % outer] = place;
    return ++walk.count < mostFrames ? _URC_NO_REASON : _URC_END_OF_STACK;
  }
};

void recordFrame(void* address) {
  CrashRecord::Frame& frame = lastRecord.frames[lastRecord.frameCount++];
  frame = {};
  frame.address = address;
  Dl_info image;
  if (dladdr(address, &image) == 0) return;
  frame.offset = std::size_t(static_cast<char*>(address) - static_cast<char*>(image.dli_fbase));
  copy(frame.image, image.dli_fname);
  if (image.dli_sname != nullptr) copy(frame.symbol, image.dli_sname);
}

void recordFrames(const ucontext_t* context) {
  Walk walk{context == nullptr ? 0 : programCounter(*context), {}, {}, 0};
  _Unwind_Backtrace(Walk::take, &walk);
  lastRecord.frameCount = 0;
  for (std::size_t at = 0; at < std::min(walk.count, Walk::inner); ++at)
    recordFrame(walk.first[at]);
  const std::size_t rest = walk.count - lastRecord.frameCount;
  for (std::size_t at = rest - std::min(rest, Walk::outer); at < rest; ++at)
    recordFrame(walk.last[at % Walk::outer]);
}

const void* imageOf(const void* address) {
  Dl_info image;
  return dladdr(address, &image) != 0 ? image.dli_fbase : nullptr;
}

// The stand-ins are part of this program.
bool isHosts(const Method* methods, unsigned count) {
  const void* program = imageOf(reinterpret_cast<const void*>(&imageOf));
  return std::any_of(methods, methods + count, [program](Method method) {
    return imageOf(reinterpret_cast<const void*>(method_getImplementation(method))) == program;
  });
}

// Where the function of each frame begins. Asked once: the answer takes as long as a small search.
Beginnings beginnings() {
  Beginnings all{};
  for (std::size_t at = 0; at < lastRecord.frameCount; ++at) {
    // What returns belongs to the call before.
    auto* place = static_cast<char*>(const_cast<void*>(lastRecord.frames[at].address));
    all[at] = _Unwind_FindEnclosingFunction(place - (at > 0 ? 1 : 0));
  }
  return all;
}

void nameMethods(Class cls, char kind, const Beginnings& starts) {
  unsigned count = 0;
  Method* methods = class_copyMethodList(cls, &count);
  for (unsigned index = 0; index < count; ++index) {
    const void* start = reinterpret_cast<const void*>(method_getImplementation(methods[index]));
    for (std::size_t at = 0; at < lastRecord.frameCount; ++at) {
      if (starts[at] != start) continue;
      CrashRecord::Frame& frame = lastRecord.frames[at];
      std::snprintf(frame.method.data(), frame.method.size(), "%c[%s %s]", kind, class_getName(cls),
                    sel_getName(method_getName(methods[index])));
      frame.isHook = imageOf(start) != imageOf(reinterpret_cast<const void*>(&nameMethods)) &&
                     isHosts(methods, count);
    }
  }
  std::free(methods);
}

void nameAllMethods() {
  const int count = objc_getClassList(nullptr, 0);
  auto* classes = static_cast<Class*>(std::calloc(std::size_t(count), sizeof(Class)));
  if (classes == nullptr) return;
  const int given = std::min(count, objc_getClassList(classes, count));
  const Beginnings starts = beginnings();
  for (int index = 0; index < given; ++index) {
    nameMethods(classes[index], '-', starts);
    nameMethods(object_getClass(reinterpret_cast<id>(classes[index])), '+', starts);
  }
  std::free(classes);
}

void tell(CrashRecord::Kind kind, int signal, const void* address, const ucontext_t* context) {
  lastRecord.kind = kind;
  lastRecord.signal = signal;
  lastRecord.address = address;
  lastRecord.uptime = watched->phone.clock.uptime();
  lastRecord.launchedAt = watched->host.launchedAt();
  lastRecord.wallAtZero = watched->phone.clock.wallAtZero();
  lastRecord.line = watched->lineNumber;
  recordFrames(context);
  writeRecord();
  nameAllMethods();
  writeRecord();
}

void explain(int signal, const siginfo_t& info, const ucontext_t& context) {
  if (lastRecord.reason.front() != '\0') return;
  const auto address = std::uintptr_t(info.si_addr), pointer = stackPointer(context);
  const bool isAtEnd = pointer < stackEnd + stackMargin || address < stackEnd + stackMargin;
  if (signal == SIGSEGV && isAtEnd && address + stackMargin > pointer &&
      address < pointer + stackMargin)
    copy(lastRecord.reason, "stack overflow");
  else if (signal == SIGABRT)
    copy(lastRecord.reason, sim::runtime::fatalMessage());
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
  copy(lastRecord.reason, reason);
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
  Walk unused{};
  _Unwind_Backtrace(Walk::take, &unused);  // it may allocate the first time
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
