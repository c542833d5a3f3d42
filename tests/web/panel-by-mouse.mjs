// The road of one timer with a mouse: Control Center, the moon, the wheels, confirm.
import assert from "node:assert/strict";
import { andCommand, journalHas, onScreen, openPanel, pass, phoneTest, press } from "./harness.mjs";

phoneTest("a timer is set and its end pauses the music", {}, async (served, page) => {
  await openPanel(served, page);
  await press(page, onScreen(page, "button", "Confirm"));
  await journalHas(page, 'post "DozewellDidStartNotification"');
  await pass(served, 400);
  await journalHas(page, "-[SBMediaController pauseForEventSource:0]");
  assert.ok((await served.journal()).includes('post "DozewellDidStopNotification"'));
});

phoneTest(
  "a swipe from the upper right corner opens Control Center, one from below leaves it",
  {},
  async (served, page) => {
    const glass = await page.locator("#glass").boundingBox();
    const swipe = async (fromX, fromY, toY) => {
      await page.mouse.move(glass.x + glass.width * fromX, glass.y + glass.height * fromY);
      await page.mouse.down();
      await page.mouse.move(glass.x + glass.width * fromX, glass.y + glass.height * toY, {
        steps: 5,
      });
      await page.mouse.up();
    };
    await swipe(0.9, 0.01, 0.4);
    await journalHas(page, "user control-center open");
    await page.locator('#device-controls[aria-pressed="true"]').waitFor();
    await swipe(0.5, 0.985, 0.5);
    await journalHas(page, "user control-center close");
  },
);

phoneTest("a drag turns the wheels one to one", {}, async (served, page) => {
  await openPanel(served, page);
  const minutes = await onScreen(page, "spinbutton", "min").boundingBox();
  const row = (32 / 200) * minutes.height;
  const [x, y] = [minutes.x + minutes.width / 2, minutes.y + minutes.height / 2];
  await page.mouse.move(x, y);
  await page.mouse.down();
  await page.mouse.move(x, y - 3 * row, { steps: 6 });
  await andCommand(page, "touch ended", () => page.mouse.up());
  await pass(served, 3);
  await page.locator('#glass [role="spinbutton"][aria-label="min"][aria-valuetext="20"]').waitFor();
});

phoneTest("the wheel of the mouse turns the wheel under it", {}, async (served, page) => {
  await openPanel(served, page);
  await onScreen(page, "spinbutton", "hours").hover();
  await page.mouse.wheel(0, 80);
  await page
    .locator('#glass [role="spinbutton"][aria-label="hours"][aria-valuetext="2"]')
    .waitFor();
  await press(page, onScreen(page, "button", "Confirm"));
  await journalHas(page, "persistedTimerDate");
  const { uptime, wall } = await served.post("/api/time", { beforeEnd: 10 });
  assert.ok(Math.abs(uptime - (2 * 3600 + 5 * 60 + 1 + 2 - 10)) < 1, `${uptime} seconds, ${wall}`);
});
