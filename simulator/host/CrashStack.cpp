#include "simulator/host/CrashStack.h"

#include <dlfcn.h>
#include <unwind.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <tuple>

#include "objc/runtime.h"

namespace sim {
namespace {

using Frames = decltype(CrashRecord::frames);
using Beginnings = std::array<const void*, std::tuple_size_v<Frames>>;

constexpr std::size_t mostFrames = 1'000'000;

std::uintptr_t programCounter(const ucontext_t& context) {
#if defined(__x86_64__)
  return std::uintptr_t(context.uc_mcontext.gregs[REG_RIP]);
#else
  return context.uc_mcontext.pc;
#endif
}

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

void recordFrame(CrashRecord& record, void* address) {
  CrashRecord::Frame& frame = record.frames[record.frameCount++];
  frame = {};
  frame.address = address;
  Dl_info image;
  if (dladdr(address, &image) == 0) return;
  frame.offset = std::size_t(static_cast<char*>(address) - static_cast<char*>(image.dli_fbase));
  copyText(frame.image, image.dli_fname);
  if (image.dli_sname != nullptr) copyText(frame.symbol, image.dli_sname);
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
Beginnings beginningsIn(const CrashRecord& record) {
  Beginnings all{};
  for (std::size_t at = 0; at < record.frameCount; ++at) {
    // What returns belongs to the call before.
    auto* place = static_cast<char*>(const_cast<void*>(record.frames[at].address));
    all[at] = _Unwind_FindEnclosingFunction(place - (at > 0 ? 1 : 0));
  }
  return all;
}

void nameMethods(CrashRecord& record, Class cls, char kind, const Beginnings& starts) {
  unsigned count = 0;
  Method* methods = class_copyMethodList(cls, &count);
  for (unsigned index = 0; index < count; ++index) {
    const void* start = reinterpret_cast<const void*>(method_getImplementation(methods[index]));
    for (std::size_t at = 0; at < record.frameCount; ++at) {
      if (starts[at] != start) continue;
      CrashRecord::Frame& frame = record.frames[at];
      std::snprintf(frame.method.data(), frame.method.size(), "%c[%s %s]", kind, class_getName(cls),
                    sel_getName(method_getName(methods[index])));
      frame.isHook = imageOf(start) != imageOf(reinterpret_cast<const void*>(&imageOf)) &&
                     isHosts(methods, count);
    }
  }
  std::free(methods);
}

}  // namespace

void rehearseFrames() {
  Walk unused{};
  _Unwind_Backtrace(Walk::take, &unused);
}

void recordFrames(CrashRecord& record, const ucontext_t* context) {
  Walk walk{context == nullptr ? 0 : programCounter(*context), {}, {}, 0};
  _Unwind_Backtrace(Walk::take, &walk);
  record.frameCount = 0;
  for (std::size_t at = 0; at < std::min(walk.count, Walk::inner); ++at)
    recordFrame(record, walk.first[at]);
  const std::size_t rest = walk.count - record.frameCount;
  for (std::size_t at = rest - std::min(rest, Walk::outer); at < rest; ++at)
    recordFrame(record, walk.last[at % Walk::outer]);
}

void nameMethods(CrashRecord& record) {
  const int count = objc_getClassList(nullptr, 0);
  auto* classes = static_cast<Class*>(std::calloc(std::size_t(count), sizeof(Class)));
  if (classes == nullptr) return;
  const int given = std::min(count, objc_getClassList(classes, count));
  const Beginnings starts = beginningsIn(record);
  for (int index = 0; index < given; ++index) {
    nameMethods(record, classes[index], '-', starts);
    nameMethods(record, object_getClass(reinterpret_cast<id>(classes[index])), '+', starts);
  }
  std::free(classes);
}

}  // namespace sim
