// What the set-up offers to choose from.

export const systems = ["12.5", "13.7", "14.8", "15.0", "15.4", "16.1.2", "16.7"];

export const haptics = [
  ["2", "Every kind of feedback"],
  ["1", "System sounds only"],
  ["0", "Nothing"],
];

export const languages = [
  ["en_US", "English (United States)"],
  ["en_GB", "English (United Kingdom)"],
  ["ar_SA", "العربية (السعودية)"],
  ["de_DE", "Deutsch (Deutschland)"],
  ["es_ES", "Español (España)"],
  ["fr_FR", "Français (France)"],
  ["he_IL", "עברית (ישראל)"],
  ["hi_IN", "हिन्दी (भारत)"],
  ["it_IT", "Italiano (Italia)"],
  ["ja_JP", "日本語（日本）"],
  ["ko_KR", "한국어 (대한민국)"],
  ["nl_NL", "Nederlands (Nederland)"],
  ["pl_PL", "Polski (Polska)"],
  ["pt_BR", "Português (Brasil)"],
  ["ru_RU", "Русский (Россия)"],
  ["sv_SE", "Svenska (Sverige)"],
  ["tr_TR", "Türkçe (Türkiye)"],
  ["uk_UA", "Українська (Україна)"],
  ["vi_VN", "Tiếng Việt (Việt Nam)"],
  ["zh-Hans_CN", "简体中文（中国大陆）"],
  ["zh-Hant_TW", "繁體中文（台灣）"],
];
