// The names of an image's own functions, also of those that it does not export.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

namespace sim {

class ElfSymbols {
 public:
  // Knows none where the file is not what it should be, or has been stripped.
  explicit ElfSymbols(const std::filesystem::path& image);

  // Of the function that the offset from the image's begin lies in, demangled; empty: none.
  std::string functionAt(std::uint64_t offset) const;

 private:
  struct Function {
    std::uint64_t size;
    std::string name;
  };
  std::map<std::uint64_t, Function> functions_;  // by address
};

std::string demangled(const std::string& name);

}  // namespace sim
