// The phone's own Settings, by a finger: what is changed in the pane is what the timer obeys.
import assert from "node:assert/strict";
import { andCommand, journalHas, onScreen, pass, phoneTest } from "./harness.mjs";

const small = { page: { viewport: { width: 375, height: 740 }, hasTouch: true, isMobile: true } };

const tap = (page, name) =>
  andCommand(page, "touch ended", () => onScreen(page, "button", name).tap());

// A finger's way over the phone's glass, from and to parts of its height.
async function drag(page, from, to, command) {
  const client = await page.context().newCDPSession(page);
  const box = await page.locator("#glass").boundingBox();
  const touch = (type, part) =>
    client.send("Input.dispatchTouchEvent", {
      type,
      touchPoints:
        part === undefined ? [] : [{ x: box.x + box.width / 2, y: box.y + box.height * part }],
    });
  await touch("touchStart", from);
  for (const way of [0.25, 0.5, 0.75, 1]) await touch("touchMove", from + (to - from) * way);
  await andCommand(page, command, () => touch("touchEnd"));
}

async function openPane(page) {
  await andCommand(page, "unlock", () => page.click("#device-home"));
  await tap(page, "Settings");
  await tap(page, "Dozewell2");
  await onScreen(page, "button", "Timer offers").waitFor();
}

// Until the row can be touched.
async function scrollTo(page, name) {
  while ((await onScreen(page, "button", name).count()) === 0)
    await drag(page, 0.8, 0.4, "touch ended");
}

phoneTest("a fade that the pane switches off does not happen", small, async (served, page) => {
  await openPane(page);
  await scrollTo(page, "Fade the music out");
  const fade = onScreen(page, "button", "Fade the music out");
  assert.equal(await fade.getAttribute("aria-pressed"), "true");
  await tap(page, "Fade the music out");
  await page.locator('#glass [aria-label="Fade the music out"]:not([aria-pressed])').waitFor();
  await journalHas(page, "user set volumeFadeOutEnabled NO");
  await drag(page, 0.99, 0.5, "settings close");
  await onScreen(page, "button", "Dozewell2").waitFor({ state: "detached" });

  await served.run(
    "play",
    "send Dozewell2Manager.sharedInstance startTimerWithMode:andValue: 0 60",
  );
  await pass(served, 59);
  await served.run("expect-playing YES");
  await pass(served, 2);
  await served.run("expect-playing NO"); // the fade would have taken a quarter of a minute
});

phoneTest("a value is chosen from its list", small, async (served, page) => {
  await openPane(page);
  await scrollTo(page, "The fade takes");
  await tap(page, "The fade takes");
  await tap(page, "30 seconds");
  await page.locator('#glass [aria-label="30 seconds"][aria-pressed="true"]').waitFor();
  await tap(page, "Dozewell");
  await page.locator('#glass [aria-label="The fade takes"]').waitFor();
  await served.run("expect Dozewell2StorageManager.sharedInstance.volumeFadeOutTime 30");
});

phoneTest("the page's own settings follow the pane", {}, async (served, page) => {
  await page.click("#tab-settings");
  await page.locator("#setting-letTheSongFinishEnabled:not(:checked)").waitFor();
  await served.run(
    "unlock",
    "settings open",
    'settings tap "Dozewell2"',
    'settings tap "Let the song finish"',
  );
  await page.locator("#setting-letTheSongFinishEnabled:checked").waitFor();
});
