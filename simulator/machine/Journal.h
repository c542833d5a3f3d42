// What the phone did: everything with an effect outside the user interface, one line each, with
// the virtual time, in Objective-C notation.
//
//   2701.000  -[SBMediaController pause]
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/machine/Clock.h"

namespace sim {

struct JournalEntry {
  Nanoseconds time;  // uptime
  std::string text;
};

class Journal {
 public:
  explicit Journal(const Clock& clock) : clock_(clock) {}

  void record(std::string text);
  // Entries of before a restart, put back after it.
  void restore(std::vector<JournalEntry> entries) { entries_ = std::move(entries); }

  const std::vector<JournalEntry>& entries() const { return entries_; }
  // Called with each new entry, in order; the program prints them, the page shows them.
  void observe(std::function<void(const JournalEntry&)> observer);

 private:
  const Clock& clock_;
  std::vector<JournalEntry> entries_;
  std::vector<std::function<void(const JournalEntry&)>> observers_;
};

// "  2701.000  -[SBMediaController pause]": right-aligned seconds, two spaces, the text.
std::string formatted(const JournalEntry& entry);

// Notation of arguments: "text in quotes", YES, 0.5 (shortest exact form), nil.
std::string quoted(std::string_view text);
std::string notation(bool value);
std::string notation(double value);
std::string notation(float value);
std::string notation(long value);

}  // namespace sim
