#include "Slice.h"

#include <sys/mman.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>

namespace {

constexpr std::uint32_t segmentCommand = 0x19, chainedFixups = 0x80000034;
constexpr std::uint32_t initOffsets = 0x16;  // section type
constexpr std::uint32_t arm64e = 0x80000002;
constexpr std::uint16_t format64 = 2, noFixups = 0xFFFF;

template <class T>
T read(const char* at) {
  T value;
  std::memcpy(&value, at, sizeof value);
  return value;
}

}  // namespace

void fail(const std::string& message) {
  std::printf("%s\n", message.c_str());
  std::exit(1);
}

Slice::Slice(const char* path, const Resolver& resolver) {
  std::ifstream stream(path, std::ios::binary);
  file_.assign(std::istreambuf_iterator<char>(stream), {});
  if (file_.size() < 32) fail(std::string("cannot read ") + path);
  readCommands();
  place();
  fixUp(resolver);
  protect();
}

void Slice::readCommands() {
  authenticates_ = read<std::uint32_t>(&file_[8]) == arm64e;
  const char* command = &file_[32];
  for (auto count = read<std::uint32_t>(&file_[16]); count > 0; --count) {
    const auto kind = read<std::uint32_t>(command);
    if (kind == segmentCommand) readSegment(command);
    if (kind == chainedFixups) fixups_ = read<std::uint32_t>(command + 8);
    command += read<std::uint32_t>(command + 4);
  }
  if (fixups_ == 0) fail("the slice has no chained fixups");
}

void Slice::readSegment(const char* command) {
  segments_.push_back({read<std::uint64_t>(command + 24), read<std::uint64_t>(command + 32),
                       read<std::uint64_t>(command + 40), read<std::uint64_t>(command + 48),
                       read<int>(command + 60)});
  for (std::uint32_t i = 0; i < read<std::uint32_t>(command + 64); ++i) {
    const char* section = command + 72 + 80 * i;
    if ((read<std::uint32_t>(section + 64) & 0xFF) != initOffsets) continue;
    const char* table = &file_[read<std::uint32_t>(section + 48)];
    for (std::uint64_t at = 0; at < read<std::uint64_t>(section + 40); at += 4)
      initialisers_.push_back(read<std::uint32_t>(table + at));
  }
}

void Slice::place() {
  const Segment& last = segments_.back();
  void* memory = mmap(nullptr, last.address + last.size, PROT_READ | PROT_WRITE,
                      MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) fail("no memory for the slice");
  base_ = static_cast<char*>(memory);
  for (const Segment& segment : segments_)
    std::memcpy(base_ + segment.address, &file_[segment.offset], segment.fileSize);
}

void Slice::fixUp(const Resolver& resolver) {
  const char* header = &file_[fixups_];
  const char* importTable = header + read<std::uint32_t>(header + 8);
  const char* names = header + read<std::uint32_t>(header + 12);
  std::vector<void*> imports(read<std::uint32_t>(header + 16));
  for (std::size_t i = 0; i < imports.size(); ++i) {
    const char* name = names + (read<std::uint32_t>(importTable + 4 * i) >> 9);
    imports[i] = resolver(name);
    if (imports[i] == nullptr) fail(std::string("nothing to bind ") + name + " to");
  }
  const char* starts = header + read<std::uint32_t>(header + 4);
  for (std::size_t i = 0; i < segments_.size(); ++i) {
    const auto offset = read<std::uint32_t>(starts + 4 + 4 * i);
    if (offset == 0) continue;
    const char* segment = starts + offset;
    if (read<std::uint16_t>(segment + 6) != format64) fail("unexpected pointer format");
    for (std::uint16_t page = 0; page < read<std::uint16_t>(segment + 20); ++page) {
      const auto first = read<std::uint16_t>(segment + 22 + 2 * page);
      if (first != noFixups)
        fixUpChain(segments_[i].address + page * read<std::uint16_t>(segment + 4) + first, imports);
    }
  }
}

void Slice::fixUpChain(std::uint64_t address, const std::vector<void*>& imports) {
  for (std::uint64_t step = 1; step != 0; address += 4 * step) {
    char* slot = base_ + address;
    const auto word = read<std::uint64_t>(slot);
    step = (word >> 51) & 0xFFF;
    void* target = word >> 63 ? imports.at(word & 0xFFFFFF) : base_ + (word & 0xFFFFFFFFF);
    std::memcpy(slot, &target, sizeof target);
  }
}

void Slice::protect() const {
  for (const Segment& segment : segments_) {
    char* start = base_ + segment.address;
    // The protection bits of both systems are the same three.
    if (mprotect(start, segment.size, segment.protection) != 0) fail("cannot protect a segment");
    __builtin___clear_cache(start, start + segment.size);
  }
}

void Slice::runInitialisers() const {
  if (initialisers_.empty()) fail("the slice has no initialisers");
  for (const std::uint32_t offset : initialisers_) reinterpret_cast<void (*)()>(base_ + offset)();
}
