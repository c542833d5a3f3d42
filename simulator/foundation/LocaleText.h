// Text as ICU writes it in a locale, from the same data on every machine. That of ICU 72 is a
// little newer than a phone's of its time; where the platform differs, the function concerned says
// so.
#pragma once

#include <string>
#include <string_view>

namespace sim {

// For ICU's functions: the locale with that identifier, English where there is none or ICU knows
// nothing of its language. Never the machine's own.
std::string icuLocale(std::string_view identifier);

// "Friday, January 1" for a moment in UTC, by the Gregorian calendar.
std::string dayText(double secondsSinceReferenceDate, std::string_view locale);

// "22:05", or "10:05" where twelve hours are counted, for a moment in UTC; without the half of the
// day, which the platform's clocks leave out.
std::string clockText(double secondsSinceReferenceDate, std::string_view locale);

// A whole number in the locale's digits, without grouping; halves to the even one. `decimal` is
// written with Western digits, as std::to_string does.
std::string numberText(std::string_view decimal, std::string_view locale);

// The same text with the locale's digits in place of Western ones.
std::string withLocaleDigits(std::string_view western, std::string_view locale);

enum class UnitWidth { full, abbreviated };
// What stands beside a number of "hour" or "minute": "hours", "Std."; by the plural rules of the
// locale.
std::string unitText(const char* unit, long count, UnitWidth width, std::string_view locale);

}  // namespace sim
