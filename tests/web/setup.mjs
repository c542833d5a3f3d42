// The set-up as a form: what it says becomes a fresh phone.
import assert from "node:assert/strict";
import { andRestart, phoneTest } from "./harness.mjs";

const lines = async (served) => JSON.parse(await served.read("/api/setup")).lines;

phoneTest("a phone is made as the form says", {}, async (served, page) => {
  await page.click("#tab-setup");
  await page.selectOption("#setup-ios", "16.1.2");
  await page.fill("#setup-bluetooth", "Pillow Speaker");
  await page.fill("#setup-shortcuts", "Dozewell End");
  await page.check("#setup-companion-sylph", { force: true });
  await page.click("#panel-setup summary");
  await page.fill("#setup-missing", "DNDModeAssertionService");
  await andRestart(page, () => page.click("#setup-apply"));
  assert.deepEqual(await lines(served), [
    "ios 16.1.2",
    "missing DNDModeAssertionService",
    'shortcuts "Dozewell End"',
    'bluetooth "Pillow Speaker"',
    'file "/var/jb/var/lib/dpkg/info/ch.vorhal.sylph.list" ""',
  ]);
  assert.equal(await page.inputValue("#setup-bluetooth"), "Pillow Speaker");
  assert.ok(await page.isChecked("#setup-companion-sylph"));
});

phoneTest(
  "a wrong line is shown with what was expected, and changes nothing",
  {},
  async (served, page) => {
    await page.click("#tab-setup");
    await page.click("#panel-setup summary");
    await page.fill("#setup-others", "haptics 9");
    await page.click("#setup-apply");
    await page.locator("#setup-problem", { hasText: "haptics 9" }).waitFor();
    assert.deepEqual(await lines(served), []);
  },
);

phoneTest("each version says what to expect of it", {}, async (served, page) => {
  await page.click("#tab-setup");
  const said = page.locator("#setup-ios-expectation");
  assert.match(await said.textContent(), /made for/);
  const versions = await page
    .locator("#setup-ios option")
    .evaluateAll((options) => options.map((option) => option.value));
  for (const version of versions) {
    await page.selectOption("#setup-ios", version);
    const isOfTheNewModule = Number.parseInt(version, 10) >= 16;
    assert.equal(/^No moon/.test(await said.textContent()), isOfTheNewModule, version);
  }
  await andRestart(page, () => page.click("#setup-apply"));
  assert.deepEqual(await lines(served), [`ios ${versions.at(-1)}`]);
  assert.match(await said.textContent(), /^No moon/);
});
