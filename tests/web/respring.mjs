// The host's process is restarted in the middle of a timer: the page comes back by itself.
import assert from "node:assert/strict";
import {
  andCommand,
  andRestart,
  journalHas,
  openPanel,
  onScreen,
  pass,
  phoneTest,
  press,
} from "./harness.mjs";

async function startTimer(served, page) {
  await openPanel(served, page);
  await press(page, onScreen(page, "button", "Confirm"));
  await journalHas(page, 'post "DozewellDidStartNotification"');
  await pass(served, 60);
}

phoneTest(
  "a timer survives a respring, and the page shows the new host",
  {},
  async (served, page) => {
    await startTimer(served, page);
    await andRestart(page, () => page.click("#device-respring"));
    await page.locator("#glass .boot.seen").waitFor({ state: "attached" });
    await page.locator("#device-controls:not([aria-pressed=true])").waitFor();
    await pass(served, 400);
    await journalHas(page, "-[SBMediaController pauseForEventSource:0]");
    assert.equal(
      (await served.journal()).filter((line) => line.includes("pauseForEventSource:")).length,
      1,
    );
  },
);

phoneTest("a host that was killed is started again by hand", {}, async (served, page) => {
  await startTimer(served, page);
  await andCommand(page, "kill", () => page.click("#device-kill"));
  await page.locator("#device-kill:disabled").waitFor();
  await andCommand(page, "respring", () =>
    page.locator("#device-respring", { hasText: "Start again" }).click(),
  );
  await page.locator("#device-kill:enabled").waitFor();
  await pass(served, 400);
  await journalHas(page, "-[SBMediaController pauseForEventSource:0]");
});
