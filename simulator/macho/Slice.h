// What the loader has to know of a slice, read from its bytes and checked.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "simulator/macho/Bytes.h"
#include "simulator/macho/ExportTrie.h"
#include "simulator/macho/FatFile.h"
#include "simulator/macho/Fixups.h"

namespace sim::macho {

// Addresses are those that the linker has given, from 0 or where the first segment begins.
struct Segment {
  enum Protection : std::uint32_t { readable = 1, writable = 2, executable = 4 };

  std::string name;
  std::uint64_t address, size;
  Bytes bytes;               // of the file; zeros follow
  std::uint32_t protection;  // the bits are those of mprotect
  bool isReadOnly;           // once its pointers are fixed up

  std::uint64_t end() const { return address + size; }
  bool contains(std::uint64_t place) const { return place >= address && place < end(); }
};

struct Section {
  std::string name;
  std::uint64_t address, size;
  std::uint32_t flags;

  bool isCode() const { return (flags & 0x80000400) != 0; }
  bool hasBytes() const { return (flags & 0xFF) != 1 && (flags & 0xFF) != 0xC; }  // not zeros
  bool contains(std::uint64_t place) const { return place >= address && place - address < size; }
};

struct Library {
  std::string path;  // as the slice names it: "@rpath/Cephei.framework/Cephei"
  bool isWeak;       // the slice does without it

  std::string name() const;  // the last part of its path
};

class Slice {
 public:
  // `slice` must outlive this. Throws Error for whatever the loader cannot take.
  explicit Slice(const SliceBytes& slice);

  bool authenticates() const { return architecture_ == arm64e; }
  const std::vector<Segment>& segments() const { return segments_; }
  const std::vector<Section>& sections() const { return sections_; }
  const std::vector<Library>& libraries() const { return libraries_; }
  const Fixups& fixups() const { return fixups_; }
  const std::vector<std::uint64_t>& initialisers() const { return initialisers_; }
  const Exports& exports() const { return exports_; }

  // From the first segment's beginning to the last one's end.
  std::uint64_t begin() const { return segments_.front().address; }
  std::uint64_t size() const { return segments_.back().end() - begin(); }

  // nullptr when the place is in none.
  const Section* sectionAt(std::uint64_t place) const;
  // As far as the next export or its section's end.
  std::uint64_t sizeOfExport(std::uint64_t place) const;

 private:
  void readCommands();
  void read(std::uint32_t kind, const Bytes& command);
  void readSegment(const Bytes& command);
  void readSection(const Bytes& section);
  void readInitialisers(const Section& table, std::uint32_t offset);
  void checkSegments() const;
  void checkInitialisers() const;
  Bytes linkData(const Bytes& command, const char* what) const;

  Architecture architecture_;
  Bytes bytes_;
  std::vector<Segment> segments_;
  std::vector<Section> sections_;
  std::vector<Library> libraries_;
  std::optional<Bytes> fixupData_, exportData_;
  Fixups fixups_;
  Exports exports_;
  std::vector<std::uint64_t> initialisers_;
};

}  // namespace sim::macho
