// The settings page: all of them, in words, and each change is one of the phone.
import assert from "node:assert/strict";
import { andCommand, journalHas, phoneTest } from "./harness.mjs";

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

phoneTest("every entry of the journal can be looked at", {}, async (served, page) => {
  await served.run("volume 0.8");
  await page.locator("#entries .entry-line", { hasText: "You set the volume to 80 %" }).click();
  await page.locator(".entry-details", { hasText: "You set the volume to 80 %." }).waitFor();
  await page.locator(".entry-details pre", { hasText: "user volume 0.8" }).waitFor();
  await page.fill("#journal-filter", "volume");
  await page.locator("#entries code", { hasText: "user volume 0.8" }).waitFor();
  assert.ok(
    (await page.locator("#entries code").allTextContents()).every((text) =>
      text.toLowerCase().includes("volume"),
    ),
  );
});
