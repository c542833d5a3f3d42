// What the set-up offers to choose from.

import { say } from "../ui/language.js";

export const systems = ["12.5", "13.7", "14.8", "15.0", "15.4", "16.1.2", "16.7", "17.0"];

// From which major version on.
const expectations = [
  [
    16,
    say(
      "No moon: Control Center's player was built anew. A timer that a script starts still ends.",
    ),
  ],
  [15, say("What the extension is made for: a moon beside the song, and the panel below it.")],
  [13, say("Like 15, as far as is known; alerts come in a window of their own.")],
  [0, say("Like 13, as far as is known; the volume goes through the media controller.")],
];

// What to expect of the extension there, in a line.
export const expectation = (version) =>
  expectations.find(([major]) => parseInt(version, 10) >= major)[1];

export const haptics = [
  ["2", say("Every kind of feedback")],
  ["1", say("System sounds only")],
  ["0", say("Nothing")],
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
