// The settings page: all of them, in words, and each change is one of the phone.
import assert from "node:assert/strict";
import { andCommand, phoneTest } from "./harness.mjs";

phoneTest(
  "settings change on the phone, and go back to their defaults",
  {},
  async (served, page) => {
    await page.click("#tab-settings");
    await page.locator(".setting[data-key]").last().waitFor();
    assert.equal(await page.locator(".setting[data-key]").count(), 24);
    await page.fill("#setting-volumeFadeOutTime", "40");
    await andCommand(page, "set volumeFadeOutTime 40", () => page.keyboard.press("Enter"));
    const reset = page.locator('[data-key="volumeFadeOutTime"] .reset');
    await reset.waitFor();
    await andCommand(page, "set volumeFadeOutTime none", () => reset.click());
    await reset.waitFor({ state: "hidden" });
    assert.equal(await page.inputValue("#setting-volumeFadeOutTime"), "15");
  },
);

phoneTest("a number out of its range is not set, and says why", {}, async (served, page) => {
  await page.click("#tab-settings");
  await page.fill("#setting-volumeFadeOutTime", "-5");
  await page.locator("#setting-volumeFadeOutTime-problem", { hasText: "0" }).waitFor();
  await page.keyboard.press("Enter");
  await page.fill("#setting-volumeFadeOutTime", "20");
  await andCommand(page, "set volumeFadeOutTime 20", () => page.keyboard.press("Enter"));
  assert.equal(await page.textContent("#setting-volumeFadeOutTime-problem"), "");
  assert.ok(!(await served.read("api/recording.phone")).includes("-5"));
});
