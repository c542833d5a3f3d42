// A phone script in the page: opened, stepped, failed, closed.
import assert from "node:assert/strict";
import { openPage, phoneTest } from "./harness.mjs";

const script = `# One song.
boot
playlist "A" 60
advance 10s
expect-playing NO
`;

async function open(served, page, text) {
  await page.click("#tab-script");
  await page.setInputFiles("#script-file", served.write("one.phone", text));
  await page.locator(".script-status", { hasText: "one.phone: Ready" }).waitFor();
}

phoneTest("a script is played line by line up to the line that fails", {}, async (served, page) => {
  await open(served, page, script);
  await page.locator("#script-text .next").waitFor();
  await page.locator("#panel-time.stands").waitFor();
  await page.locator("#hint", { hasText: "waits for its script" }).waitFor();
  await page.click("#script-step");
  await page.locator("#script-text li:nth-child(3).next").waitFor();
  await page.click("#script-run");
  await page.locator("#script-text li:nth-child(5).failed").waitFor();
  await page.locator("#panel-script .form-problem", { hasText: "Line 5" }).waitFor();
  await page.click("#script-step"); // a failure is not the end
  await page.locator(".script-status", { hasText: "to its end" }).waitFor();
  await page.click("#script-back");
  await page.locator("#script-text li:nth-child(5).next").waitFor();
  await page.locator("#script-text li:nth-child(3)").click();
  await page.locator("#script-text li:nth-child(3).next").waitFor();
  await page.click("#script-close");
  await page.locator(".script-empty").waitFor();
});

const failing = `boot
playlist "A" 2
repeat-all YES
advance 60s
expect-journal "no"
`;

phoneTest("a failure's long story leaves room for the script", {}, async (served, page) => {
  await open(served, page, failing);
  await page.click("#script-run");
  const problem = page.locator("#panel-script .form-problem");
  await problem.waitFor();
  const [seen, whole] = await problem.evaluate((box) => [box.clientHeight, box.scrollHeight]);
  assert.ok(seen < 150 && whole > seen, `${seen} of ${whole} pixels are seen`);
});

phoneTest("what was done is opened as a script, by its address", {}, async (served, page) => {
  await served.run("volume 0.7", "advance 5s");
  await page.goto(`${served.address}?script=/api/recording.phone`);
  await page.locator(".script-status", { hasText: "recording.phone: Ready" }).waitFor();
  await page.locator("#script-text code", { hasText: "volume 0.7" }).waitFor();
  await page.click("#script-run");
  await page.locator(".script-status", { hasText: "to its end" }).waitFor();
  assert.ok((await served.journal()).includes("user volume 0.7"));
});

phoneTest(
  "a script is opened by the address that brings the secret along",
  { page: false },
  async (served) => {
    await served.run("volume 0.7", "advance 5s");
    const page = await openPage(served, { path: "?script=api/recording.phone" });
    await page.locator(".script-status", { hasText: "recording.phone: Ready" }).waitFor();
    assert.equal(page.url(), served.address);
    assert.deepEqual(page.problems, []);
    await page.context().close();
  },
);

phoneTest("a line typed by hand is done, and a wrong one explained", {}, async (served, page) => {
  await page.click("#tab-script");
  await page.fill("#command-line", "get UIDevice.currentDevice.systemVersion");
  await page.keyboard.press("Enter");
  await page.locator(".command-output", { hasText: "15.4" }).waitFor();
  await page.fill("#command-line", "advanse 10s");
  await page.keyboard.press("Enter");
  await page.locator(".command-output.wrong", { hasText: "expected a command" }).waitFor();
});
