// Another language is chosen in the set-up: a fresh phone speaks it.
import assert from "node:assert/strict";
import { andCommand, andRestart, onScreen, pass, phoneTest } from "./harness.mjs";

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
