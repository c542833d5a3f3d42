// Slices in this process's memory, as a phone's loader places them.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/macho/FatFile.h"
#include "simulator/macho/Slice.h"

namespace sim::macho {

// By its first bytes; false for what cannot be read.
bool isMachO(const std::filesystem::path& file);

// Which slice of a fat file is loaded where both could be: by the processor, as on a phone, unless
// one was asked for. Before any is loaded.
void preferSlice(const Architecture& wanted);

// True when the file holds a slice that would be loaded here and that signs pointers: the runtime
// has to begin with it. False for whatever cannot be loaded.
bool wantsSignedPointers(const std::filesystem::path& file);

class Image {
 public:
  // Called with the last part of the path of each library that the slice names, in their order;
  // false when there is none.
  using LibraryLoader = bool (*)(const std::string& name);

  // Maps the slice, binds it, and runs its initialisers. It stays for the life of the process.
  // Throws Error.
  static const Image& load(const std::filesystem::path& path, LibraryLoader loadLibrary);

  struct Symbol {
    void* address;
    bool isCode;
    std::size_t size;  // bytes, up to what follows
  };
  // What the slice exports under that C name.
  std::optional<Symbol> symbol(const std::string& name) const;

  // The bytes of what is neither code nor zeros, a section each.
  std::vector<std::string_view> constants() const;

 private:
  Image(std::vector<char> file, const SliceBytes& bytes);

  void map();
  void bind(LibraryLoader loadLibrary);
  std::vector<void*> importedAddresses(LibraryLoader loadLibrary) const;
  void* ofLibrary(const Import& import) const;
  void* ofAny(const Import& import) const;
  const Library& libraryOf(const Import& import) const;
  std::string whereFrom(const Import& import) const;
  void protect() const;
  void runInitialisers() const;
  char* at(std::uint64_t address) const { return base_ + (address - slice_.begin()); }

  std::vector<char> file_;  // the slice's bytes are in it
  Slice slice_;
  char* base_ = nullptr;
};

}  // namespace sim::macho
