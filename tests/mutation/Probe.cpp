// Linked into the library to learn which of its blocks a script executes. A block that is entered
// sets its byte in the file MUTATION_HITS. The file is mapped, so that a host which is killed or
// begins again loses nothing. MUTATION_BLOCKS gets the blocks' addresses, relative to the library.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

char* hits;
std::uint32_t count;

void writeBlocks(const char* name, const std::uintptr_t* begin, const std::uintptr_t* end) {
  Dl_info library;
  std::FILE* file = std::fopen(name, "w");
  if (file == nullptr || dladdr(begin, &library) == 0) std::abort();
  const auto base = reinterpret_cast<std::uintptr_t>(library.dli_fbase);
  for (; begin != end; begin += 2) std::fprintf(file, "%lx\n", begin[0] - base);
  std::fclose(file);
}

}  // namespace

extern "C" void __sanitizer_cov_trace_pc_guard_init(std::uint32_t* start, std::uint32_t* stop) {
  const char* name = std::getenv("MUTATION_HITS");
  if (start == stop || *start != 0 || name == nullptr) return;
  for (std::uint32_t* guard = start; guard != stop; ++guard) *guard = ++count;
  const int file = open(name, O_RDWR | O_CREAT, 0600);
  if (file < 0 || ftruncate(file, count) != 0) std::abort();
  void* mapped = mmap(nullptr, count, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
  if (mapped == MAP_FAILED) std::abort();
  hits = static_cast<char*>(mapped);
  close(file);
}

extern "C" void __sanitizer_cov_trace_pc_guard(const std::uint32_t* guard) {
  if (hits != nullptr) hits[*guard - 1] = 1;
}

extern "C" void __sanitizer_cov_pcs_init(const std::uintptr_t* begin, const std::uintptr_t* end) {
  const char* name = std::getenv("MUTATION_BLOCKS");
  if (name != nullptr && access(name, F_OK) != 0) writeBlocks(name, begin, end);
}
