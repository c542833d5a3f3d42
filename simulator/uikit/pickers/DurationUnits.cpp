#include "simulator/uikit/pickers/DurationUnits.h"

#include <array>

#include "simulator/foundation/NSLocale.h"

namespace sim {
namespace {

struct Language {
  std::string_view code;
  DurationUnits units;
};

constexpr std::array<Language, 21> languages = {{
    {"en", {"hour", "hours", "min"}},  {"ar", {"ساعة", "ساعات", "د"}},
    {"cs", {"hod.", "hod.", "min"}},   {"da", {"time", "timer", "min."}},
    {"de", {"Std.", "Std.", "Min."}},  {"el", {"ώρα", "ώρες", "λ."}},
    {"es", {"hora", "horas", "min"}},  {"fr", {"heure", "heures", "min"}},
    {"he", {"שעה", "שעות", "דק׳"}},    {"hi", {"घंटा", "घंटे", "मिनट"}},
    {"it", {"ora", "ore", "min"}},     {"ja", {"時間", "時間", "分"}},
    {"ko", {"시간", "시간", "분"}},    {"nl", {"uur", "uur", "min."}},
    {"pl", {"godz.", "godz.", "min"}}, {"pt", {"hora", "horas", "min"}},
    {"ru", {"ч", "ч", "мин"}},         {"sv", {"timme", "timmar", "min"}},
    {"tr", {"saat", "saat", "dk."}},   {"uk", {"год", "год", "хв"}},
    {"vi", {"giờ", "giờ", "phút"}},
}};

}  // namespace

DurationUnits durationUnits(std::string_view locale) {
  const LocaleParts parts = partsOf(locale);
  if (parts.language == "zh") {
    const bool isTraditional = parts.script == "Hant" || parts.region == "TW" ||
                               parts.region == "HK" || parts.region == "MO";
    return isTraditional ? DurationUnits{"小時", "小時", "分鐘"}
                         : DurationUnits{"小时", "小时", "分钟"};
  }
  for (const Language& each : languages)
    if (each.code == parts.language) return each.units;
  return languages.front().units;
}

}  // namespace sim
