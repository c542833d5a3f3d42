#include "simulator/springboard/SystemNames.h"

#include <array>

#include "simulator/foundation/NSLocale.h"
#include "simulator/machine/Phone.h"

namespace sim {
namespace {

struct Name {
  std::string_view english, arabic, german, japanese;
};

constexpr std::array<Name, 23> names = {{
    {"Airplane Mode", "نمط الطيران", "Flugmodus", "機内モード"},
    {"Mobile Data", "البيانات الخلوية", "Mobile Daten", "モバイルデータ通信"},
    {"Wi-Fi", "شبكة Wi-Fi", "WLAN", "Wi-Fi"},
    {"Bluetooth", "بلوتوث", "Bluetooth", "Bluetooth"},
    {"Focus", "تركيز", "Fokus", "集中モード"},
    {"Do Not Disturb", "عدم الإزعاج", "Nicht stören", "おやすみモード"},
    {"Volume", "مستوى الصوت", "Lautstärke", "音量"},
    {"Brightness", "الإضاءة", "Helligkeit", "明るさ"},
    {"Rotation Lock", "قفل الاتجاه", "Ausrichtungssperre", "画面の向きのロック"},
    {"Flashlight", "المصباح اليدوي", "Taschenlampe", "フラッシュライト"},
    {"Calendar", "التقويم", "Kalender", "カレンダー"},
    {"Photos", "الصور", "Fotos", "写真"},
    {"Camera", "الكاميرا", "Kamera", "カメラ"},
    {"Clock", "الساعة", "Uhr", "時計"},
    {"Weather", "الطقس", "Wetter", "天気"},
    {"Notes", "الملاحظات", "Notizen", "メモ"},
    {"Reminders", "التذكيرات", "Erinnerungen", "リマインダー"},
    {"Settings", "الإعدادات", "Einstellungen", "設定"},
    {"Music", "الموسيقى", "Musik", "ミュージック"},
    {"Not Playing", "ليس قيد التشغيل", "Keine Wiedergabe", "再生停止中"},
    {"Timer", "المؤقت", "Timer", "タイマー"},
    {"Cancel", "إلغاء", "Abbrechen", "キャンセル"},
    {"Only Settings, Clock and Music open here", "هنا تُفتح الإعدادات والساعة والموسيقى فقط",
     "Hier öffnen sich nur Einstellungen, Uhr und Musik",
     "ここで開くのは設定、時計、ミュージックだけです"},
}};

}  // namespace

std::string systemName(std::string_view english) {
  const std::string language = partsOf(Phone::current().setup.locale).language;
  for (const Name& name : names) {
    if (name.english != english) continue;
    const std::string_view found = language == "ar"   ? name.arabic
                                   : language == "de" ? name.german
                                   : language == "ja" ? name.japanese
                                                      : name.english;
    return std::string(found);
  }
  return std::string(english);
}

}  // namespace sim
