// What has nothing to do says so, and cannot be pressed.
import assert from "node:assert/strict";
import { phoneTest } from "./harness.mjs";

phoneTest("the home key, on the home screen", {}, async (served, page) => {
  await page.locator("#device-home:enabled").waitFor(); // it leads out of the lock screen
  await page.click("#device-home");
  await page.locator("#device-home:disabled").waitFor();
  assert.match(await page.getAttribute("#device-home", "title"), /in front already/);
  await page.click("#device-controls");
  await page.locator("#device-home:enabled").waitFor();
  assert.equal(await page.getAttribute("#device-home", "title"), "Home");
});

phoneTest("taking headphones away, without any", {}, async (served, page) => {
  await page.locator("#device-headphones:disabled").waitFor();
  assert.match(await page.getAttribute("#device-headphones", "title"), /No headphones/);
  await served.run('bluetooth "Pillow Speaker"');
  await page.locator("#device-headphones:enabled").waitFor();
  await page.click("#device-headphones");
  await page.locator("#device-headphones:disabled").waitFor();
});

// A phone that runs always has a next day: only what is told of it can be without one.
phoneTest("the next event, where nothing is due", {}, async (served, page) => {
  await page.locator("#time-step:enabled").waitFor();
  const tell = (due) =>
    page.evaluate(async (is) => {
      const { state } = await import(new URL("main.js", document.baseURI)); // the page's own
      state.take("phone", { ...state.phone, due: is });
    }, due);
  await tell(false);
  await page.locator("#time-step:disabled").waitFor();
  await page.locator("#time-end-reason", { hasText: "Nothing is due." }).waitFor();
  await tell(true);
  await page.locator("#time-step:enabled").waitFor();
});
