// The journal's lines as they lie in a file: the processes of one phone, which come and go, share
// it, and none of them holds more than a few lines in memory.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "simulator/machine/Clock.h"

namespace sim {

struct JournalEntry {
  Nanoseconds time;  // uptime
  std::string text;
};

class JournalFile {
 public:
  // What does not fit into that many bytes is not written.
  static constexpr std::size_t mostBytes = std::size_t(1) << 30;

  // A file of its own that has no name, in the folder for temporary files; throws
  // std::system_error.
  JournalFile();
  // Shares an open one, with what it holds.
  explicit JournalFile(int descriptor);
  ~JournalFile();
  JournalFile(const JournalFile&) = delete;
  JournalFile& operator=(const JournalFile&) = delete;

  void append(const JournalEntry& entry);
  // Empty when all has been written; otherwise why not.
  const std::string& problem() const { return problem_; }
  // Takes note of what others have appended.
  void refresh();
  // Forgets everything.
  void clear();

  std::size_t size() const { return count_; }
  // Those from `first` on, in order, as long as the visitor wants more.
  using Visitor = std::function<bool(const JournalEntry&)>;
  void visit(std::size_t first, const Visitor& visitor) const;

  int descriptor() const { return descriptor_; }

 private:
  int descriptor_;
  std::size_t count_ = 0, end_ = 0;   // entries; bytes that they take
  std::vector<std::size_t> offsets_;  // of every so many-th entry
  std::string problem_;
};

}  // namespace sim
