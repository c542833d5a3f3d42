#include "simulator/machine/Journal.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <utility>

namespace sim {
namespace {

template <class Number>
std::string shortest(Number value) {
  std::array<char, 64> digits;
  const Number size = std::abs(value);
  // Scientific notation only where plain digits would be unreadable.
  const bool plain = size == 0 || (size >= Number(1e-6) && size < Number(1e17));
  const auto format = plain ? std::chars_format::fixed : std::chars_format::scientific;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, format);
  return {digits.data(), end.ptr};
}

}  // namespace

void Journal::record(std::string text) {
  const JournalEntry entry{clock_.uptime(), std::move(text)};
  if (!file_) file_ = std::make_unique<JournalFile>();
  file_->append(entry);
  for (std::size_t index = 0; index < observers_.size(); ++index) observers_[index](entry);
}

void Journal::visit(std::size_t first, const JournalFile::Visitor& visitor) const {
  if (file_) file_->visit(first, visitor);
}

std::vector<JournalEntry> Journal::entries(std::size_t first) const {
  std::vector<JournalEntry> all;
  visit(first, [&all](const JournalEntry& entry) {
    all.push_back(entry);
    return true;
  });
  return all;
}

void Journal::observe(std::function<void(const JournalEntry&)> observer) {
  observers_.push_back(std::move(observer));
}

std::string formatted(const JournalEntry& entry) {
  std::array<char, 48> time;
  std::snprintf(time.data(), time.size(), "%10.3f  ", seconds(entry.time));
  return time.data() + entry.text;
}

std::string secondsText(Nanoseconds duration) {
  constexpr std::size_t decimals = 9;  // of nanoseconds
  std::string fraction = std::to_string(duration % nanosecondsPerSecond);
  fraction.insert(0, decimals - fraction.size(), '0');
  fraction.erase(fraction.find_last_not_of('0') + 1);
  const std::string whole = std::to_string(duration / nanosecondsPerSecond);
  return fraction.empty() ? whole : whole + '.' + fraction;
}

std::string quoted(std::string_view text) {
  std::string result = "\"";
  for (const char letter : text) {
    if (letter == '"' || letter == '\\') {
      result += '\\';
      result += letter;
    } else if (letter == '\n') {
      result += "\\n";
    } else if (static_cast<unsigned char>(letter) < 0x20 || letter == 0x7f) {
      std::array<char, 12> escape;
      std::snprintf(escape.data(), escape.size(), "\\u{%x}", unsigned(letter));
      result += escape.data();
    } else {
      result += letter;
    }
  }
  return result + '"';
}

std::string notation(bool value) {
  return value ? "YES" : "NO";
}
std::string notation(double value) {
  return shortest(value);
}
std::string notation(float value) {
  return shortest(value);
}
std::string notation(long value) {
  return std::to_string(value);
}

}  // namespace sim
