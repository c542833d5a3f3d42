#include "simulator/host/ElfSymbols.h"

#include <cxxabi.h>
#include <elf.h>

#include <cstdlib>
#include <cstring>
#include <optional>

#include "simulator/machine/FileContent.h"

namespace sim {
namespace {

// Nothing where the file ends before.
template <class T>
std::optional<T> at(const std::string& file, std::uint64_t offset) {
  if (offset > file.size() || file.size() - offset < sizeof(T)) return std::nullopt;
  T value;
  std::memcpy(&value, file.data() + offset, sizeof value);
  return value;
}

}  // namespace

ElfSymbols::ElfSymbols(const std::filesystem::path& image) {
  const std::string file = fileContent(image).value_or("");
  const auto header = at<Elf64_Ehdr>(file, 0);
  if (!header || std::memcmp(header->e_ident, ELFMAG, SELFMAG) != 0) return;
  for (unsigned index = 0; index < header->e_shnum; ++index) {
    const auto section = at<Elf64_Shdr>(file, header->e_shoff + index * sizeof(Elf64_Shdr));
    if (!section || section->sh_type != SHT_SYMTAB) continue;
    const auto texts =
        at<Elf64_Shdr>(file, header->e_shoff + section->sh_link * sizeof(Elf64_Shdr));
    if (!texts) return;
    for (std::uint64_t place = 0; place + sizeof(Elf64_Sym) <= section->sh_size;
         place += sizeof(Elf64_Sym)) {
      const auto symbol = at<Elf64_Sym>(file, section->sh_offset + place);
      if (!symbol || texts->sh_offset + symbol->st_name >= file.size()) return;
      if (ELF64_ST_TYPE(symbol->st_info) != STT_FUNC || symbol->st_shndx == SHN_UNDEF) continue;
      const char* name = file.data() + texts->sh_offset + symbol->st_name;
      functions_[symbol->st_value] = {
          symbol->st_size, {name, strnlen(name, file.size() - texts->sh_offset - symbol->st_name)}};
    }
  }
}

std::string ElfSymbols::functionAt(std::uint64_t offset) const {
  const auto after = functions_.upper_bound(offset);
  if (after == functions_.begin()) return "";
  const auto& [start, function] = *std::prev(after);
  return offset - start < function.size ? demangled(function.name) : "";
}

std::string demangled(const std::string& name) {
  int status = 0;
  char* plain = abi::__cxa_demangle(name.c_str(), nullptr, nullptr, &status);
  std::string result = plain != nullptr ? plain : name;
  std::free(plain);
  return result;
}

}  // namespace sim
