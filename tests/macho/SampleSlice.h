// A small slice made here, with one of everything that the loader reads; tests change what they are
// about. Its code is never run.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>

class SampleSlice {
 public:
  // Where things lie in its bytes.
  enum Offset : std::uint32_t {
    subtype = 8,
    fileType = 12,
    commands = 32,
    text = 0x400,  // __text, then __init_offsets
    initialiserTable = 0x410,
    data = 0x800,
    fixups = 0x900,
    importTable = 0x940,
    importNames = 0x950,
    exports = 0x980,
    end = 0xA00,
  };

  SampleSlice() : bytes_(end, '\0') {
    put(0, 0xFEEDFACF);
    put(4, 0x0100000C);
    put(fileType, 6);
    segment("__TEXT", 0, 0x4000, 0, 0x800, 5, 2);
    section("__text", text, 16, 0x80000400);
    section("__init_offsets", initialiserTable, 4, 0x16);
    segment("__DATA_CONST", 0x4000, 0x4000, data, 0x100, 3, 1, 0x10);
    section("__got", 0x4000, 24, 6, data);
    segment("__LINKEDIT", 0x8000, 0x4000, fixups, 0x100, 1, 0);
    library(0xC, "@rpath/CydiaSubstrate.framework/CydiaSubstrate");
    library(0x80000018, "@rpath/Cephei.framework/Cephei");
    encryption = command(0x2C, 24);
    linkData(0x80000034, fixups, 0x80);
    linkData(0x80000033, exports, 0x40);
    put(initialiserTable, text);
    fillFixups();
    fillExports();
  }

  void put(std::uint32_t at, std::uint32_t value) { std::memcpy(&bytes_[at], &value, 4); }
  void put64(std::uint32_t at, std::uint64_t value) { std::memcpy(&bytes_[at], &value, 8); }
  void put16(std::uint32_t at, std::uint16_t value) { std::memcpy(&bytes_[at], &value, 2); }
  void put(std::uint32_t at, const std::string& value) {
    std::memcpy(&bytes_[at], value.data(), value.size());
  }

  // The place of a new load command of that size.
  std::uint32_t command(std::uint32_t kind, std::uint32_t size) {
    const std::uint32_t at = commands + sizeOfCommands_;
    put(at, kind);
    put(at + 4, size);
    put(16, ++commandCount_);
    put(20, sizeOfCommands_ += size);
    return at;
  }

  const std::string& bytes() const { return bytes_; }

  std::uint32_t encryption, textSegment = 0, constSegment = 0, firstSection = 0;

 private:
  void segment(const char* name, std::uint64_t address, std::uint64_t size, std::uint64_t offset,
               std::uint64_t fileSize, std::uint32_t protection, std::uint32_t sections,
               std::uint32_t flags = 0) {
    const std::uint32_t at = command(0x19, 72 + 80 * sections);
    if (textSegment == 0)
      textSegment = at;
    else if (constSegment == 0)
      constSegment = at;
    nextSection_ = at + 72;
    if (firstSection == 0) firstSection = nextSection_;
    put(at + 8, name);
    put64(at + 24, address);
    put64(at + 32, size);
    put64(at + 40, offset);
    put64(at + 48, fileSize);
    put(at + 60, protection);
    put(at + 64, sections);
    put(at + 68, flags);
  }

  void section(const char* name, std::uint64_t address, std::uint64_t size, std::uint32_t flags,
               std::uint32_t offset = 0) {
    put(nextSection_, name);
    put64(nextSection_ + 32, address);
    put64(nextSection_ + 40, size);
    put(nextSection_ + 48, offset != 0 ? offset : std::uint32_t(address));
    put(nextSection_ + 64, flags);
    nextSection_ += 80;
  }

  void library(std::uint32_t kind, const std::string& path) {
    const std::uint32_t at = command(kind, (24 + std::uint32_t(path.size()) + 8) & ~7u);
    put(at + 8, 24);
    put(at + 24, path);
  }

  void linkData(std::uint32_t kind, std::uint32_t offset, std::uint32_t size) {
    const std::uint32_t at = command(kind, 16);
    put(at + 8, offset);
    put(at + 12, size);
  }

  // In __DATA_CONST one pointer to each import, and one into __text.
  void fillFixups() {
    put(fixups + 4, 28);  // where the starts are
    put(fixups + 8, importTable - fixups);
    put(fixups + 12, importNames - fixups);
    put(fixups + 16, 2);
    put(fixups + 20, 1);
    put(fixups + 28, 3);     // segments
    put(fixups + 36, 0x10);  // the second has some
    put(fixups + 44, 24);    // bytes of what follows
    put16(fixups + 48, 0x4000);
    put16(fixups + 50, 2);  // pointers of 64 bits, not signed
    put16(fixups + 64, 1);  // pages
    put16(fixups + 66, 0);
    put(importTable, 1);                        // of the first library, the name at 0
    put(importTable + 4, 2 | 0x100 | 17 << 9);  // of the second, weak
    put(importNames, "_MSHookMessageEx");
    put(importNames + 17, "_some");
    const std::uint64_t next = std::uint64_t{2} << 51, bind = std::uint64_t{1} << 63;
    put64(data, bind | next | 0);
    put64(data + 8, bind | next | std::uint64_t{4} << 24 | 1);
    put64(data + 16, text + 8);
  }

  // _preferences and _prefix share their beginning.
  void fillExports() {
    const unsigned char tree[] = {
        0,   1,   '_',  'p',  'r',  'e', 'f', 0,   9,           // 0: no export; one child
        0,   2,   'e',  'r',  'e',  'n', 'c', 'e', 's', 0, 24,  // 9: two
        'i', 'x', 0,    30,                                     //
        4,   0,   0x80, 0x80, 0x01, 0,                          // 24: at 0x4000
        3,   0,   0x88, 0x08, 0};                               // 30: at 0x408
    std::memcpy(&bytes_[exports], tree, sizeof tree);
  }

  std::string bytes_;
  std::uint32_t commandCount_ = 0, sizeOfCommands_ = 0, nextSection_ = 0;
};
