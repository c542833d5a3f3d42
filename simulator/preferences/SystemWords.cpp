#include "simulator/preferences/SystemWords.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "simulator/machine/Phone.h"

namespace sim {
namespace {

// The longest that a locale begins with counts.
constexpr std::array<std::pair<std::string_view, std::string_view>, 23> titles = {
    {{"ar", "الإعدادات"}, {"de", "Einstellungen"}, {"en", "Settings"},      {"es", "Ajustes"},
     {"fr", "Réglages"},  {"he", "הגדרות"},        {"hi", "सेटिंग्ज़"},         {"it", "Impostazioni"},
     {"ja", "設定"},      {"ko", "설정"},          {"nl", "Instellingen"},  {"pl", "Ustawienia"},
     {"pt", "Ajustes"},   {"ru", "Настройки"},     {"sv", "Inställningar"}, {"tr", "Ayarlar"},
     {"uk", "Параметри"}, {"vi", "Cài đặt"},       {"zh", "设置"},          {"zh_Hant", "設定"},
     {"zh_HK", "設定"},   {"zh_MO", "設定"},       {"zh_TW", "設定"}}};

}  // namespace

std::string settingsTitle() {
  std::string locale = Phone::current().setup.locale;
  std::replace(locale.begin(), locale.end(), '-', '_');
  std::string_view found = "Settings";
  std::size_t length = 0;
  for (const auto& [language, title] : titles)
    if (language.size() > length && locale.starts_with(language)) {
      found = title;
      length = language.size();
    }
  return std::string(found);
}

}  // namespace sim
