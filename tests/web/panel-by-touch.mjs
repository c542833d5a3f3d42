// The road of one timer with a finger on a phone-sized screen.
import assert from "node:assert/strict";
import { andCommand, journalHas, onScreen, pass, phoneTest } from "./harness.mjs";

const small = { page: { viewport: { width: 375, height: 740 }, hasTouch: true, isMobile: true } };

// A finger's way from the browser itself, not made by the page.
async function drag(page, from, to) {
  const client = await page.context().newCDPSession(page);
  const touch = (type, points) =>
    client.send("Input.dispatchTouchEvent", { type, touchPoints: points });
  await touch("touchStart", [from]);
  for (const part of [0.25, 0.5, 0.75, 1])
    await touch("touchMove", [
      { x: from.x + (to.x - from.x) * part, y: from.y + (to.y - from.y) * part },
    ]);
  await andCommand(page, "touch ended", () => touch("touchEnd", []));
}

const tap = (page, locator) => andCommand(page, "touch ended", () => locator.tap());

phoneTest("a finger opens the panel, turns a wheel and confirms", small, async (served, page) => {
  await andCommand(page, "control-center open", () => page.tap("#device-controls"));
  await pass(served, 1);
  await tap(page, onScreen(page, "button", "Sleep timer"));
  await pass(served, 1);
  const box = await onScreen(page, "spinbutton", "min").boundingBox();
  const middle = { x: box.x + box.width / 2, y: box.y + box.height / 2 };
  await drag(page, middle, { x: middle.x, y: middle.y - 2 * (32 / 200) * box.height });
  await pass(served, 3);
  await page.locator('#glass [aria-label="min"][aria-valuetext="15"]').waitFor();
  await tap(page, onScreen(page, "button", "Confirm"));
  await journalHas(page, 'post "DozewellDidStartNotification"');
});

phoneTest(
  "a tap on a row beside the chosen one turns the wheel to it",
  small,
  async (served, page) => {
    await andCommand(page, "control-center open", () => page.tap("#device-controls"));
    await pass(served, 1);
    await tap(page, onScreen(page, "button", "Sleep timer"));
    await pass(served, 1);
    const box = await onScreen(page, "spinbutton", "hours").boundingBox();
    await andCommand(page, "touch ended", () =>
      page.touchscreen.tap(box.x + box.width / 2, box.y + box.height / 2 + (32 / 200) * box.height),
    );
    await pass(served, 3);
    await page.locator('#glass [aria-label="hour"][aria-valuetext="1"]').waitFor();
  },
);

phoneTest("a tap on the dark screen wakes the phone, and that is all", {}, async (served, page) => {
  await served.run("screen off");
  await page.locator("#handset.off").waitFor();
  await andCommand(page, "screen on", () => page.locator("#glass").click());
  await page.locator("#handset:not(.off)").waitFor();
  // Lines are answered in their order: what else the tap has sent has been, too.
  await andCommand(page, "volume-up", () => page.locator(".up-key").click());
  assert.equal(await page.locator(".toast.problem").count(), 0);
});
