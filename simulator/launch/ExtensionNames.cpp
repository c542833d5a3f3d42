#include "simulator/launch/ExtensionNames.h"

#include <dlfcn.h>
#include <link.h>

#include <algorithm>
#include <cctype>

namespace sim {
namespace {

struct Search {
  const link_map* library;
  std::vector<std::string_view>& names;
};

bool canBeInName(char letter) {
  return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_' || letter == ':' ||
         letter == '.' || letter == '$';
}

// Sanitizers put unreadable bytes around constants; they do not check this function.
__attribute__((no_sanitize("address"))) void addNames(std::vector<std::string_view>& names,
                                                      const char* bytes, std::size_t count) {
  constexpr std::size_t shortest = 2;
  const char* name = bytes;
  for (const char* at = bytes; at != bytes + count; ++at) {
    if (canBeInName(*at)) continue;
    const auto length = std::size_t(at - name);
    if (*at == '\0' && length >= shortest) names.emplace_back(name, length);
    name = at + 1;
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

void addNamesWithin(void* handle, std::vector<std::string_view>& names) {
  Search search{nullptr, names};
  if (dlinfo(handle, RTLD_DI_LINKMAP, &search.library) == 0) dl_iterate_phdr(readSegments, &search);
  std::sort(names.begin(), names.end());
  names.erase(std::unique(names.begin(), names.end()), names.end());
}

}  // namespace sim
