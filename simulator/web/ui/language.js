// What the page says, in the first language of the browser's that it knows. A text in English is
// its own key: `say("The volume goes to {level}.", { level })`. Every other language has a table in
// `languages/`, fetched only where it is needed; scripts/lint/translations.py finds what is missing
// there, and reads the texts from the calls: they are literals.

const known = ["en", "ar", "de", "ja"];
const rightToLeft = ["ar"];

const primary = (tag) => tag.split("-")[0].toLowerCase();

// With its region, for Intl.
export const locale = navigator.languages.find((tag) => known.includes(primary(tag))) ?? "en";
export const language = primary(locale);
export const isRightToLeft = rightToLeft.includes(language);

async function fetchTable() {
  if (language === "en") return {};
  // Without the table the page speaks English: that the server is gone it says by itself.
  const url = new URL(`../languages/${language}.json`, import.meta.url);
  return fetch(url).then(
    (response) => (response.ok ? response.json() : {}),
    () => ({}),
  );
}

const table = await fetchTable();
const plural = new Intl.PluralRules(locale);
const numbers = new Intl.NumberFormat(locale, { useGrouping: false, maximumFractionDigits: 3 });

// A word from elsewhere keeps its own direction, and leaves the text's alone.
const isolated = (text) => (isRightToLeft ? `\u2068${text}\u2069` : text);
const written = (value) =>
  typeof value === "number" ? numbers.format(value) : isolated(`${value}`);

const filled = (text, values) =>
  text.replace(/\{(\w+)\}/g, (whole, name) => (name in values ? written(values[name]) : whole));

export const number = (value) => numbers.format(value);

export function say(text, values = {}) {
  return filled(table[text] ?? text, values);
}

// sayCount("One song is left.", "{count} songs are left.", 3): the second text is the key; its
// translation has a text for each of the language's plural forms.
export function sayCount(one, other, count, values = {}) {
  const forms = table[other] ?? { one, other };
  return filled(forms[plural.select(count)] ?? forms.other, { count, ...values });
}

// What stands in the document itself: texts of elements with data-say, and all labels.
function translateDocument() {
  document.documentElement.lang = language;
  document.documentElement.dir = isRightToLeft ? "rtl" : "ltr";
  for (const element of document.querySelectorAll("[data-say]"))
    element.textContent = say(element.textContent);
  for (const element of document.querySelectorAll("[aria-label]"))
    element.ariaLabel = say(element.ariaLabel);
}

translateDocument();
