// What the phone did: everything with an effect outside the user interface, one line each, with
// the virtual time, in Objective-C notation.
//
//   2701.000  -[SBMediaController pause]
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/machine/JournalFile.h"

namespace sim {

class Journal {
 public:
  explicit Journal(const Clock& clock) : clock_(clock) {}

  void record(std::string text);
  // Goes on with the journal that lies in that open file.
  void adopt(int descriptor) { file_ = std::make_unique<JournalFile>(descriptor); }

  std::size_t size() const { return file_ ? file_->size() : 0; }
  // Those from `first` on, in order, as long as the visitor wants more.
  void visit(std::size_t first, const JournalFile::Visitor& visitor) const;
  std::vector<JournalEntry> entries(std::size_t first = 0) const;
  // Empty when all has been written down; otherwise why not.
  std::string problem() const { return file_ ? file_->problem() : std::string(); }
  // Called with each new entry, in order; the program prints them, the page shows them.
  void observe(std::function<void(const JournalEntry&)> observer);

 private:
  const Clock& clock_;
  std::unique_ptr<JournalFile> file_;  // made when there is something to write
  std::vector<std::function<void(const JournalEntry&)>> observers_;
};

// "  2701.000  -[SBMediaController pause]": right-aligned seconds, two spaces, the text.
std::string formatted(const JournalEntry& entry);

// "61", "61.25": exact, as few digits as will do.
std::string secondsText(Nanoseconds duration);

// Notation of arguments: "text in quotes", YES, 0.5 (shortest exact form), nil.
std::string quoted(std::string_view text);
std::string notation(bool value);
std::string notation(double value);
std::string notation(float value);
std::string notation(long value);

}  // namespace sim
