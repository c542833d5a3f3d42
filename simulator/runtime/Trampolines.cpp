#include "simulator/runtime/Trampolines.h"

#include <sys/mman.h>

#include <cstddef>
#include <cstring>
#include <mutex>
#include <unordered_map>
#include <utility>
#include <vector>

#include "simulator/runtime/AssemblyOffsets.h"
#include "simulator/runtime/Blocks.h"
#include "simulator/runtime/Fatal.h"
#include "simulator/runtime/Signing.h"

// The templates, in assembly; TRAMPOLINE_SIZE bytes each.
extern "C" {
[[gnu::visibility("hidden")]] extern const char simulatorRuntimeTrampoline[];
#if defined(__x86_64__)
[[gnu::visibility("hidden")]] extern const char simulatorRuntimeTrampoline_stret[];
#elif defined(__aarch64__)
[[gnu::visibility("hidden")]] extern const char simulatorRuntimeTrampoline_signed[];
#endif
}

namespace sim::runtime {
namespace {

static_assert(offsetof(BlockLayout, invoke) == BLOCK_INVOKE_OFFSET);

struct TrampolineTable {
  std::mutex lock;
  std::vector<char*> unused[2];  // by kind
  std::unordered_map<char*, TrampolineKind> used;
};

TrampolineTable& trampolineTable() {
  static auto* instance = new TrampolineTable;
  return *instance;
}

const char* templateOf([[maybe_unused]] TrampolineKind kind) {
#if defined(__x86_64__)
  if (kind == TrampolineKind::stret) return simulatorRuntimeTrampoline_stret;
#elif defined(__aarch64__)
  if (signs()) return simulatorRuntimeTrampoline_signed;
#endif
  return simulatorRuntimeTrampoline;
}

id& blockOf(char* trampoline) {
  return *reinterpret_cast<id*>(trampoline - TRAMPOLINE_DISTANCE);
}

// Pages of data and, behind them, as many of code. The code is written before it may be run and
// never again: no page is ever writable and executable.
char* mapTrampolines(TrampolineKind kind) {
  void* memory = mmap(nullptr, std::size_t{2} * TRAMPOLINE_DISTANCE, PROT_READ | PROT_WRITE,
                      MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) fatal("imp_implementationWithBlock: no memory");
  char* code = static_cast<char*>(memory) + TRAMPOLINE_DISTANCE;
  for (std::size_t offset = 0; offset < TRAMPOLINE_DISTANCE; offset += TRAMPOLINE_SIZE)
    std::memcpy(code + offset, templateOf(kind), TRAMPOLINE_SIZE);
  if (mprotect(code, TRAMPOLINE_DISTANCE, PROT_READ | PROT_EXEC) != 0)
    fatal("imp_implementationWithBlock: this system lets no program make functions");
  __builtin___clear_cache(code, code + TRAMPOLINE_DISTANCE);
  return code;
}

char* takeUnused(TrampolineKind kind) {
  std::vector<char*>& unused = trampolineTable().unused[static_cast<int>(kind)];
  if (unused.empty()) {
    char* code = mapTrampolines(kind);
    // The last is taken first, and so the first one mapped.
    for (std::size_t offset = TRAMPOLINE_DISTANCE; offset > 0; offset -= TRAMPOLINE_SIZE)
      unused.push_back(code + offset - TRAMPOLINE_SIZE);
  }
  char* taken = unused.back();
  unused.pop_back();
  return taken;
}

}  // namespace

IMP makeTrampoline(TrampolineKind kind, id block) {
  const std::lock_guard guard(trampolineTable().lock);
  char* trampoline = takeUnused(kind);
  trampolineTable().used.emplace(trampoline, kind);
  blockOf(trampoline) = block;
  return reinterpret_cast<IMP>(trampoline);
}

id blockOfTrampoline(IMP function) {
  const std::lock_guard guard(trampolineTable().lock);
  auto* trampoline = reinterpret_cast<char*>(function);
  return trampolineTable().used.contains(trampoline) ? blockOf(trampoline) : nullptr;
}

id destroyTrampoline(IMP function) {
  const std::lock_guard guard(trampolineTable().lock);
  auto* trampoline = reinterpret_cast<char*>(function);
  const auto found = trampolineTable().used.find(trampoline);
  if (found == trampolineTable().used.end()) return nullptr;
  trampolineTable().unused[static_cast<int>(found->second)].push_back(trampoline);
  trampolineTable().used.erase(found);
  return std::exchange(blockOf(trampoline), nullptr);
}

}  // namespace sim::runtime
