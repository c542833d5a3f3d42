#include "simulator/launch/ExtensionNames.h"

#include <dlfcn.h>
#include <link.h>

#include <algorithm>
#include <array>
#include <string_view>

namespace sim {
namespace {

struct Search {
  const link_map* library;
  std::vector<std::string>& names;
};

// By table: an extension has half a million bytes, and is read in each night that tests play.
constexpr std::array<bool, 256> canBeInName = [] {
  std::array<bool, 256> can{};
  for (const char letter : std::string_view("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                            "0123456789_:.$"))
    can[static_cast<unsigned char>(letter)] = true;
  return can;
}();

// Sanitizers put unreadable bytes around constants; they do not check this function.
__attribute__((no_sanitize("address"))) void addNames(std::vector<std::string>& names,
                                                      const char* bytes, std::size_t count) {
  constexpr std::size_t shortest = 2;
  std::size_t start = 0;
  for (std::size_t at = 0; at < count; ++at) {
    if (canBeInName[static_cast<unsigned char>(bytes[at])]) continue;
    if (bytes[at] == '\0' && at - start >= shortest) {
      std::string& name = names.emplace_back();
      // Letter by letter: whoever copies several is checked.
      for (; start < at; ++start) name += bytes[start];
    }
    start = at + 1;
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
