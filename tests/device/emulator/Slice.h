// A thin slice in this program's memory, as a phone's loader would place it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// The address to write for an imported symbol; nullptr ends the program.
using Resolver = std::function<void*(const std::string& symbol)>;

// Reads, maps and fixes up the file. Its memory stays for the life of the process. Whatever is
// malformed or of an unexpected format ends the program with a message: the file is our own.
class Slice {
 public:
  Slice(const char* path, const Resolver& resolver);

  // True for the slice whose code signs and authenticates pointers.
  bool authenticates() const { return authenticates_; }
  void runInitialisers() const;

 private:
  struct Segment {
    std::uint64_t address, size, offset, fileSize;
    int protection;
  };

  void readCommands();
  void readSegment(const char* command);
  void place();
  void fixUp(const Resolver& resolver);
  void fixUpChain(std::uint64_t address, const std::vector<void*>& imports);
  void protect() const;

  std::vector<char> file_;
  std::vector<Segment> segments_;
  std::vector<std::uint32_t> initialisers_;  // offsets from base_
  std::uint32_t fixups_ = 0;                 // offset in the file
  bool authenticates_ = false;
  char* base_ = nullptr;
};

[[noreturn]] void fail(const std::string& message);
