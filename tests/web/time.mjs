// Time: faster, standing still, from event to event, to the timer's last seconds.
import assert from "node:assert/strict";
import { journalHas, openPanel, onScreen, phoneTest, press } from "./harness.mjs";

const timeAnswer = (page, act) =>
  Promise.all([
    page.waitForResponse((response) => response.url().endsWith("/api/time")),
    act(),
  ]).then(([response]) => response.json());

phoneTest("time runs, stands and jumps as it is told", {}, async (served, page) => {
  await page.locator("#panel-time.stands").waitFor();
  assert.equal((await timeAnswer(page, () => page.click("#time-pause"))).paused, false);
  await page.locator("#panel-time:not(.stands)").waitFor();
  await page.locator("#speed").focus();
  const faster = await timeAnswer(page, () => page.keyboard.press("End"));
  assert.equal(faster.speed, 3600);
  await page.locator(".speed-name", { hasText: "an hour in a second" }).waitFor();
  assert.equal((await timeAnswer(page, () => page.keyboard.press("Home"))).speed, 1);
  await page.locator(".speed-name", { hasText: "as in life" }).waitFor();
  const still = await timeAnswer(page, () => page.click("#time-pause"));
  assert.equal(still.paused, true);
  const later = await timeAnswer(page, () => page.click("#time-minute"));
  assert.ok(Math.abs(later.uptime - still.uptime - 60) < 0.001);
});

phoneTest("ten seconds before the end, then event by event", {}, async (served, page) => {
  await openPanel(served, page);
  await press(page, onScreen(page, "button", "Confirm"));
  await journalHas(page, 'post "DozewellDidStartNotification"');
  const { uptime } = await timeAnswer(page, () => page.click("#time-end"));
  assert.ok(Math.abs(uptime - (2 + 301 - 10)) < 0.5, `at ${uptime}`);
  for (let events = 0; events < 60; ++events) {
    if (await page.locator("#entries code", { hasText: "setSuppressHUD:YES" }).count()) return;
    await timeAnswer(page, () => page.click("#time-step"));
  }
  assert.fail("the fade did not begin");
});

phoneTest(
  "there is no end to go to without a timer, and the page says so",
  {},
  async (served, page) => {
    await timeAnswer(page, () => page.click("#time-end"));
    await page.locator(".toast.problem").waitFor();
  },
);
