#include "simulator/launch/ExtensionNames.h"

#include <dlfcn.h>
#include <link.h>

#include <algorithm>
#include <cctype>

namespace sim {
namespace {

struct Search {
  const link_map* library;
  std::vector<std::string>& names;
};

bool canBeInName(char letter) {
  return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_' || letter == ':' ||
         letter == '.' || letter == '$';
}

// Sanitizers put unreadable bytes around constants; they do not check this function.
__attribute__((no_sanitize("address"))) void addNames(std::vector<std::string>& names,
                                                      const char* bytes, std::size_t count) {
  constexpr std::size_t shortest = 2;
  std::string name;  // letter by letter: whoever copies several is checked
  for (std::size_t at = 0; at < count; ++at) {
    if (canBeInName(bytes[at])) {
      name += bytes[at];
      continue;
    }
    if (bytes[at] == '\0' && name.size() >= shortest) names.push_back(name);
    name.clear();
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
