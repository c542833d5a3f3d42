// Another language is chosen in the set-up: a fresh phone speaks it.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import {
  andCommand,
  andRestart,
  onScreen,
  openPanel,
  pass,
  phoneTest,
  press,
  timeAnswer,
} from "./harness.mjs";

phoneTest("the panel speaks Arabic after the change", {}, async (served, page) => {
  await page.click("#tab-setup");
  await page.selectOption("#setup-locale", "ar_SA");
  await andRestart(page, () => page.click("#setup-apply"));
  await andCommand(page, "control-center open", () => page.click("#device-controls"));
  await pass(served, 1);
  await onScreen(page, "button", "مؤقت النوم").waitFor();
  await andCommand(page, "touch ended", () => onScreen(page, "button", "مؤقت النوم").click());
  await pass(served, 1);
  await onScreen(page, "button", "تأكيد").waitFor();
  // Digits too: ٥ minutes are chosen at first.
  await page.locator('#glass [role="spinbutton"][aria-valuetext="٥"]').waitFor();
  assert.deepEqual(JSON.parse(await served.read("/api/setup")).lines, ["locale ar_SA"]);
});

phoneTest(
  "the page speaks the browser's language, from right to left where that is so",
  { page: { locale: "ar-EG" } },
  async (served, page) => {
    const document = page.locator("html");
    assert.equal(await document.getAttribute("lang"), "ar");
    assert.equal(await document.getAttribute("dir"), "rtl");
    assert.equal(await page.locator("#device-home").textContent(), "الرئيسية");
    // The phone's own language is another.
    await andCommand(page, "control-center open", () => page.click("#device-controls"));
    await pass(served, 1);
    await onScreen(page, "button", "Sleep timer").waitFor();
    assert.equal(await page.locator("#glass").getAttribute("lang"), "en-US");
    const [side, phone] = await Promise.all(
      [".side", "#glass"].map((name) => page.locator(name).boundingBox()),
    );
    assert.ok(side.x < phone.x);
  },
);

const table = new URL("../../simulator/web/languages/de.json", import.meta.url);
const german = JSON.parse(readFileSync(table));

// Whether a text is in English, of those that have another in German. What stands at a {place} may
// be anything.
function isEnglish(texts) {
  const escaped = (part) => part.replace(/[.*+?^${}()|[\]\\]/g, "\\$&");
  const patterns = texts
    .filter((text) => german[text] !== text)
    .map((text) => new RegExp(`^${text.split(/\{\w+\}/).map(escaped).join(".+")}$`, "s"));
  return (text) => patterns.some((pattern) => pattern.test(text));
}

// All that the server says of the settings, but for the name.
const textsOf = (settings) =>
  settings
    .flatMap(({ group, footer, label, unit, choices = [] }) => [
      ...[group, footer, label, unit],
      ...choices.map((each) => each.label),
    ])
    .filter((text) => text && text !== "Dozewell");

// What the page says, seen or read aloud. The phone's screen and the texts of its views are in the
// phone's language, and code and lines of the journal in none.
const saidBy = (page) =>
  page.evaluate(() => {
    const spoken = ["aria-label", "aria-valuetext", "title", "placeholder", "data-drop"];
    const others = "#glass, #view-tree small, pre, code, noscript";
    const elements = [document.body, ...document.body.querySelectorAll("*")].filter(
      (each) => !each.closest(others),
    );
    const texts = elements.flatMap((each) => [
      ...[...each.childNodes].filter(({ nodeType }) => nodeType === 3).map(({ data }) => data),
      ...spoken.map((name) => each.getAttribute(name) ?? ""),
    ]);
    return [...new Set(texts.map((text) => text.trim()).filter(Boolean))];
  });

phoneTest(
  "a night in German leaves nothing of the page in English",
  { page: { locale: "de-DE", silent: false } },
  async (served, page) => {
    const settings = textsOf(JSON.parse(await served.read("/api/settings")));
    const amount = /^\d+ /;
    assert.deepEqual(
      settings.filter((text) => !(text in german) && !amount.test(text)),
      [],
      "the page has words for all settings",
    );
    const english = isEnglish([...Object.keys(german), ...settings]);
    const isGerman = async (where) =>
      assert.deepEqual((await saidBy(page)).filter(english), [], where);
    await isGerman("before it is started");
    await page.click("#start-silent");
    await page.click("#device-lock");
    await page.locator("#device-lock", { hasText: german.Lock }).waitFor();
    await isGerman("unlocked");
    await served.run("play");
    await openPanel(served, page);
    await isGerman("with the panel");
    await press(page, onScreen(page, "button", "Confirm"));
    await page.locator("#hint.timer").waitFor();
    await isGerman("with a timer");
    await timeAnswer(page, () => page.click("#time-end"));
    await pass(served, 12);
    await page.locator("#hint", { hasText: "wird leiser" }).waitFor();
    await isGerman("in the fade");
    await pass(served, 60);
    await page.locator("#hint.done").waitFor();
    await isGerman("after the end");
    await page.click("#tab-settings");
    await page.locator(".setting[data-key]").last().waitFor();
    await page.fill("#setting-volumeFadeOutTime", "-5");
    await page.locator("#setting-volumeFadeOutTime-problem", { hasText: "0" }).waitFor();
    await isGerman("in the settings");
    for (const [tab, part] of [
      ["setup", "#setup-apply"],
      ["script", "#command-line"],
      ["inside", "#view-tree button"],
      ["journal", "#entries .piece"],
    ]) {
      await page.click(`#tab-${tab}`);
      await page.locator(part).first().waitFor();
      await isGerman(tab);
    }
    await page.locator("#entries .piece").first().click();
    await page.locator("#entries pre").first().waitFor();
    await isGerman("with a piece of the story open");
    await served.run("send NSObject.new performSelector: selector nope").catch(() => null);
    await page.locator("#life .life-title").waitFor();
    await isGerman("after a crash");
  },
);
