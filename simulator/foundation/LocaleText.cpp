#include "simulator/foundation/LocaleText.h"

#include <unicode/udat.h>
#include <unicode/udatpg.h>
#include <unicode/uloc.h>
#include <unicode/unum.h>
#include <unicode/unumberformatter.h>

#include <map>

#include "simulator/foundation/NSLocale.h"
#include "simulator/foundation/Unicode.h"
#include "simulator/runtime/Fatal.h"
#include "simulator/standin/Versions.h"

namespace sim {
namespace {

void require(UErrorCode problem, const char* what) {
  if (U_FAILURE(problem)) sim::runtime::fatal("ICU: %s: %s", what, u_errorName(problem));
}

// Calls one of ICU's functions that fill an array.
template <class Fill>
std::u16string filled(const char* what, Fill fill) {
  constexpr std::int32_t enough = 512;  // no text of ours is longer
  std::u16string text(enough, 0);
  UErrorCode problem = U_ZERO_ERROR;
  text.resize(std::size_t(fill(text.data(), enough, &problem)));
  require(problem, what);
  return text;
}

// What opening has made for a key, kept: it takes up to a millisecond.
template <class Key, class Thing, class Open>
Thing* opened(std::map<Key, Thing*>& known, Key key, Open open) {
  Thing*& kept = known[std::move(key)];
  UErrorCode problem = U_ZERO_ERROR;
  if (kept == nullptr) kept = open(&problem);
  require(problem, "cannot open a locale's data");
  return kept;
}

UDateFormat* dateFormat(UDateFormatStyle time, const std::u16string& pattern,
                        const std::string& locale, UErrorCode* problem) {
  constexpr std::u16string_view zone = u"UTC";
  return udat_open(time, pattern.empty() ? UDAT_NONE : UDAT_PATTERN, locale.c_str(), zone.data(),
                   std::int32_t(zone.size()), pattern.data(), std::int32_t(pattern.size()),
                   problem);
}

std::string gregorian(std::string_view identifier) {
  std::string locale = icuLocale(identifier);
  return locale + (locale.find('@') == locale.npos ? '@' : ';') + "calendar=gregorian";
}

UDateFormat* openDay(const std::string& locale, UErrorCode* problem) {
  constexpr std::u16string_view skeleton = u"EEEEMMMMd";
  UDateTimePatternGenerator* generator = udatpg_open(locale.c_str(), problem);
  const std::u16string pattern =
      filled("no pattern for a day", [&](char16_t* text, std::int32_t room, UErrorCode* fault) {
        return udatpg_getBestPattern(generator, skeleton.data(), std::int32_t(skeleton.size()),
                                     text, room, fault);
      });
  udatpg_close(generator);
  return dateFormat(UDAT_PATTERN, pattern, locale, problem);
}

// A pattern's letters for the half of the day, with the blanks around them.
std::u16string withoutHalfOfDay(std::u16string pattern) {
  const std::size_t half = pattern.find_first_of(u"abB");
  if (half == pattern.npos || pattern.find(u'\'') < half) return pattern;
  pattern.erase(half, pattern.find_first_not_of(u"abB", half) - half);
  constexpr const char16_t* blanks = u" \u00a0\u202f";
  pattern.erase(0, pattern.find_first_not_of(blanks));
  pattern.erase(pattern.find_last_not_of(blanks) + 1);
  return pattern;
}

UDateFormat* openClock(const std::string& locale, UErrorCode* problem) {
  UDateFormat* format = dateFormat(UDAT_SHORT, {}, locale, problem);
  const std::u16string pattern = withoutHalfOfDay(
      filled("no pattern for a time", [&](char16_t* text, std::int32_t room, UErrorCode* fault) {
        return udat_toPattern(format, false, text, room, fault);
      }));
  udat_applyPattern(format, false, pattern.data(), std::int32_t(pattern.size()));
  return format;
}

std::string momentText(const UDateFormat* format, double secondsSinceReferenceDate) {
  constexpr double referenceSince1970 = 978307200;
  const UDate moment = (secondsSinceReferenceDate + referenceSince1970) * 1000;
  return unicode::toUtf8(
      filled("no date", [&](char16_t* text, std::int32_t room, UErrorCode* fault) {
        return udat_format(format, moment, text, room, nullptr, fault);
      }));
}

// Each thread's own, because formatting changes them.
struct NumberFormats {
  std::map<std::string, UNumberFormat*> known;

  NumberFormats() = default;
  NumberFormats(const NumberFormats&) = delete;
  NumberFormats& operator=(const NumberFormats&) = delete;
  ~NumberFormats() {
    for (const auto& [locale, format] : known) unum_close(format);
  }
};

UNumberFormat* openNumber(const std::string& locale, UErrorCode* problem) {
  UNumberFormat* format = unum_open(UNUM_DECIMAL, nullptr, 0, locale.c_str(), nullptr, problem);
  unum_setAttribute(format, UNUM_GROUPING_USED, 0);
  unum_setAttribute(format, UNUM_MAX_FRACTION_DIGITS, 0);
  unum_setAttribute(format, UNUM_ROUNDING_MODE, UNUM_ROUND_HALFEVEN);
  return format;
}

// The part of a formatted number that is no digit, sign or blank of it.
std::u16string unitIn(const UFormattedNumber* formatted) {
  UErrorCode problem = U_ZERO_ERROR;
  const UFormattedValue* value = unumf_resultAsValue(formatted, &problem);
  std::int32_t length = 0;
  const char16_t* text = ufmtval_getString(value, &length, &problem);
  UConstrainedFieldPosition* place = ucfpos_open(&problem);
  ucfpos_constrainField(place, UFIELD_CATEGORY_NUMBER, UNUM_MEASURE_UNIT_FIELD, &problem);
  std::int32_t start = 0, end = 0;
  if (ufmtval_nextPosition(value, place, &problem))
    ucfpos_getIndexes(place, &start, &end, &problem);
  ucfpos_close(place);
  require(problem, "no unit");
  return {text + start, std::size_t(end - start)};
}

// The digits of Arabic where the system's version differs from ICU's data: without a region they
// are Western since iOS 18, in the Emirates since iOS 16. Those that an identifier names are left.
std::string withDigits(std::string identifier) {
  constexpr int westernInTheEmirates = 16, westernWithoutRegion = 18;
  const LocaleParts parts = partsOf(identifier);
  if (parts.language != "ar" || identifier.find('@') != identifier.npos) return identifier;
  const int version = systemMajor();
  if (parts.region.empty() && version >= westernWithoutRegion) return identifier + "@numbers=latn";
  if (parts.region == "AE" && version < westernInTheEmirates) return identifier + "@numbers=arab";
  return identifier;
}

}  // namespace

std::string icuLocale(std::string_view identifier) {
  // What it falls back to. Its first answer would be the machine's settings.
  [[maybe_unused]] static const bool isSet = [] {
    UErrorCode problem = U_ZERO_ERROR;
    uloc_setDefault("en_US", &problem);
    require(problem, "no English");
    return true;
  }();
  return withDigits(std::string(identifier.empty() ? "en_US" : identifier));
}

std::string dayText(double secondsSinceReferenceDate, std::string_view locale) {
  static auto* known = new std::map<std::string, UDateFormat*>;
  const std::string used = gregorian(locale);
  return momentText(opened(*known, used, [&](UErrorCode* fault) { return openDay(used, fault); }),
                    secondsSinceReferenceDate);
}

std::string clockText(double secondsSinceReferenceDate, std::string_view locale) {
  static auto* known = new std::map<std::string, UDateFormat*>;
  const std::string used = gregorian(locale);
  return momentText(opened(*known, used, [&](UErrorCode* fault) { return openClock(used, fault); }),
                    secondsSinceReferenceDate);
}

std::string numberText(std::string_view decimal, std::string_view locale) {
  thread_local NumberFormats formats;
  const std::string used = icuLocale(locale);
  const UNumberFormat* format =
      opened(formats.known, used, [&](UErrorCode* fault) { return openNumber(used, fault); });
  return unicode::toUtf8(
      filled("no number", [&](char16_t* text, std::int32_t room, UErrorCode* fault) {
        return unum_formatDecimal(format, decimal.data(), std::int32_t(decimal.size()), text, room,
                                  nullptr, fault);
      }));
}

std::string withLocaleDigits(std::string_view western, std::string_view locale) {
  std::string made;
  for (const char character : western)
    if (character >= '0' && character <= '9')
      made += numberText({&character, 1}, locale);
    else
      made += character;
  return made;
}

std::string unitText(const char* unit, long count, UnitWidth width, std::string_view locale) {
  static auto* known = new std::map<std::string, UNumberFormatter*>;
  const std::string used = icuLocale(locale);
  const std::string skeleton = std::string("measure-unit/duration-") + unit +
                               (width == UnitWidth::full ? " unit-width-full-name" : "");
  const UNumberFormatter* formatter = opened(*known, used + skeleton, [&](UErrorCode* fault) {
    const std::u16string units(skeleton.begin(), skeleton.end());
    return unumf_openForSkeletonAndLocale(units.data(), std::int32_t(units.size()), used.c_str(),
                                          fault);
  });
  UErrorCode problem = U_ZERO_ERROR;
  UFormattedNumber* formatted = unumf_openResult(&problem);
  unumf_formatInt(formatter, count, formatted, &problem);
  require(problem, "no number with a unit");
  std::string text = unicode::toUtf8(unitIn(formatted));
  unumf_closeResult(formatted);
  return text;
}

}  // namespace sim
