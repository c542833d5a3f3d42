#include "simulator/standin/ExtensionTexts.h"

#include <dlfcn.h>
#include <link.h>

#include <algorithm>

#include "simulator/machine/Phone.h"

namespace sim {
namespace {

// By table: an extension has half a million bytes.
struct Letters {
  bool has[256] = {};
  constexpr Letters() {
    for (const char letter : std::string_view("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                              "0123456789_:.$"))
      has[static_cast<unsigned char>(letter)] = true;
  }
};
constexpr Letters ofNames;

// Sanitizers put unreadable bytes around constants; they do not check the two functions that read
// them, but what these call: each name is copied here before it becomes a string.
__attribute__((no_sanitize("address"))) void addTexts(std::vector<std::string>& texts,
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
      texts.emplace_back(name, length);
    length = 0;
  }
}

// Whether `count` bytes hold the name before a NUL; `whole`: and before it no letter of another.
__attribute__((no_sanitize("address"))) bool hold(const char* bytes, std::size_t count,
                                                  const char* name, std::size_t length,
                                                  bool whole) {
  for (std::size_t end = length; end < count; ++end) {
    if (bytes[end] != '\0') continue;
    const char* start = bytes + end - length;
    std::size_t same = length;
    while (same > 0 && start[same - 1] == name[same - 1]) --same;
    if (same > 0) continue;
    if (!whole || end == length || !ofNames.has[static_cast<unsigned char>(start[-1])]) return true;
  }
  return false;
}

bool hold(const std::vector<std::string_view>& constants, std::string_view name, bool whole) {
  const bool canBeName = !name.empty() && std::ranges::all_of(name, [](char letter) {
    return ofNames.has[static_cast<unsigned char>(letter)];
  });
  return canBeName && std::ranges::any_of(constants, [&](std::string_view each) {
           return hold(each.data(), each.size(), name.data(), name.size(), whole);
         });
}

struct Search {
  const link_map* library;
  std::vector<std::string_view>& constants;
};

// Constants lie in what is neither code nor writable; once relocated, some of it in what was.
int addSegments(dl_phdr_info* library, std::size_t, void* context) {
  Search& search = *static_cast<Search*>(context);
  if (library->dlpi_addr != search.library->l_addr) return 0;
  for (int index = 0; index < library->dlpi_phnum; ++index) {
    const ElfW(Phdr)& segment = library->dlpi_phdr[index];
    if (segment.p_type != PT_LOAD || (segment.p_flags & PF_X) != 0) continue;
    search.constants.emplace_back(
        reinterpret_cast<const char*>(library->dlpi_addr + segment.p_vaddr), segment.p_filesz);
  }
  return 1;
}

}  // namespace

ExtensionTexts& ExtensionTexts::current() {
  return Phone::current().state<ExtensionTexts>();
}

void ExtensionTexts::add(void* handle) {
  Search search{nullptr, constants_};
  if (dlinfo(handle, RTLD_DI_LINKMAP, &search.library) == 0) dl_iterate_phdr(addSegments, &search);
}

bool ExtensionTexts::contain(std::string_view name) const {
  return hold(constants_, name, true);
}

bool ExtensionTexts::containEnd(std::string_view name) const {
  return hold(constants_, name, false);
}

std::vector<std::string> ExtensionTexts::all() const {
  std::vector<std::string> texts;
  for (std::string_view each : constants_) addTexts(texts, each.data(), each.size());
  std::ranges::sort(texts);
  texts.erase(std::unique(texts.begin(), texts.end()), texts.end());
  return texts;
}

}  // namespace sim
