#include "simulator/launch/ExtensionNames.h"

#include <dlfcn.h>
#include <link.h>

#include <algorithm>
#include <string_view>

namespace sim {
namespace {

struct Search {
  const link_map* library;
  std::vector<std::string>& names;
};

// By table: an extension has half a million bytes, and is read in each night that tests play.
struct Letters {
  bool has[256] = {};
  constexpr Letters() {
    for (const char letter : std::string_view("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                              "0123456789_:.$"))
      has[static_cast<unsigned char>(letter)] = true;
  }
};
constexpr Letters ofNames;

// Sanitizers put unreadable bytes around constants; they do not check this function, but what it
// calls: each name is copied here before it becomes a string.
__attribute__((no_sanitize("address"))) void addNames(std::vector<std::string>& names,
                                                      const char* bytes, std::size_t count) {
  constexpr std::size_t shortest = 2;
  char name[1024];  // no name is longer
  std::size_t length = 0;
  for (std::size_t at = 0; at < count; ++at) {
    const char letter = bytes[at];
    if (ofNames.has[static_cast<unsigned char>(letter)]) {
      if (length < sizeof name) name[length] = letter;
      ++length;
      continue;
    }
    if (letter == '\0' && length >= shortest && length <= sizeof name)
      names.emplace_back(name, length);
    length = 0;
  }
}

// Constants lie in what is neither code nor writable; once relocated, some of it in what was.
int readSegments(dl_phdr_info* library, std::size_t, void* context) {
  Search& search = *static_cast<Search*>(context);
  if (library->dlpi_addr != search.library->l_addr) return 0;
  for (int index = 0; index < library->dlpi_phnum; ++index) {
    const ElfW(Phdr)& segment = library->dlpi_phdr[index];
    if (segment.p_type != PT_LOAD || (segment.p_flags & PF_X) != 0) continue;
    addNames(search.names, reinterpret_cast<const char*>(library->dlpi_addr + segment.p_vaddr),
             segment.p_filesz);
  }
  return 1;
}

}  // namespace

void addNamesWithin(void* handle, std::vector<std::string>& names) {
  Search search{nullptr, names};
  if (dlinfo(handle, RTLD_DI_LINKMAP, &search.library) == 0) dl_iterate_phdr(readSegments, &search);
  std::sort(names.begin(), names.end());
  names.erase(std::unique(names.begin(), names.end()), names.end());
}

}  // namespace sim
