#include "simulator/coversheet/DateLine.h"

#include <array>
#include <chrono>
#include <cmath>

#include "simulator/foundation/NSLocale.h"

namespace sim {
namespace {

struct Language {
  std::string_view code;
  std::string_view pattern;  // W the day of the week, M the month, D the day's number
  std::array<std::string_view, 7> weekdays;  // from Sunday
  std::array<std::string_view, 12> months;
};

constexpr std::array<Language, 9> languages = {{
    {"en",
     "W, M D",
     {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"},
     {"January", "February", "March", "April", "May", "June", "July", "August", "September",
      "October", "November", "December"}},
    {"ar",
     "W، D M",
     {"الأحد", "الاثنين", "الثلاثاء", "الأربعاء", "الخميس", "الجمعة", "السبت"},
     {"يناير", "فبراير", "مارس", "أبريل", "مايو", "يونيو", "يوليو", "أغسطس", "سبتمبر", "أكتوبر",
      "نوفمبر", "ديسمبر"}},
    {"de",
     "W, D. M",
     {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"},
     {"Januar", "Februar", "März", "April", "Mai", "Juni", "Juli", "August", "September", "Oktober",
      "November", "Dezember"}},
    {"es",
     "W, D de M",
     {"domingo", "lunes", "martes", "miércoles", "jueves", "viernes", "sábado"},
     {"enero", "febrero", "marzo", "abril", "mayo", "junio", "julio", "agosto", "septiembre",
      "octubre", "noviembre", "diciembre"}},
    {"fr",
     "W D M",
     {"dimanche", "lundi", "mardi", "mercredi", "jeudi", "vendredi", "samedi"},
     {"janvier", "février", "mars", "avril", "mai", "juin", "juillet", "août", "septembre",
      "octobre", "novembre", "décembre"}},
    {"it",
     "W D M",
     {"domenica", "lunedì", "martedì", "mercoledì", "giovedì", "venerdì", "sabato"},
     {"gennaio", "febbraio", "marzo", "aprile", "maggio", "giugno", "luglio", "agosto", "settembre",
      "ottobre", "novembre", "dicembre"}},
    {"ja",
     "MD日W",
     {"日曜日", "月曜日", "火曜日", "水曜日", "木曜日", "金曜日", "土曜日"},
     {"1月", "2月", "3月", "4月", "5月", "6月", "7月", "8月", "9月", "10月", "11月", "12月"}},
    {"nl",
     "W D M",
     {"zondag", "maandag", "dinsdag", "woensdag", "donderdag", "vrijdag", "zaterdag"},
     {"januari", "februari", "maart", "april", "mei", "juni", "juli", "augustus", "september",
      "oktober", "november", "december"}},
    {"pt",
     "W, D de M",
     {"domingo", "segunda-feira", "terça-feira", "quarta-feira", "quinta-feira", "sexta-feira",
      "sábado"},
     {"janeiro", "fevereiro", "março", "abril", "maio", "junho", "julho", "agosto", "setembro",
      "outubro", "novembro", "dezembro"}},
}};

const Language& languageOf(std::string_view locale) {
  const std::string code = partsOf(locale).language;
  for (const Language& language : languages)
    if (language.code == code) return language;
  return languages.front();
}

std::string dayNumber(unsigned day, const Language& language) {
  constexpr std::array<std::string_view, 10> arabicIndic = {"٠", "١", "٢", "٣", "٤",
                                                            "٥", "٦", "٧", "٨", "٩"};
  std::string western = std::to_string(day);
  if (language.code != "ar") return western;
  std::string digits;
  for (const char digit : western) digits += arabicIndic[std::size_t(digit - '0')];
  return digits;
}

}  // namespace

std::string dateLine(double secondsSinceReferenceDate, std::string_view locale) {
  using namespace std::chrono;
  const sys_days reference{year(2001) / 1 / 1};
  const sys_days day = reference + days(long(std::floor(secondsSinceReferenceDate / 86400)));
  const year_month_day date(day);
  const Language& language = languageOf(locale);
  std::string line;
  for (const char letter : language.pattern) {
    if (letter == 'W')
      line += language.weekdays[weekday(day).c_encoding()];
    else if (letter == 'M')
      line += language.months[unsigned(date.month()) - 1];
    else if (letter == 'D')
      line += dayNumber(unsigned(date.day()), language);
    else
      line += letter;
  }
  return line;
}

}  // namespace sim
