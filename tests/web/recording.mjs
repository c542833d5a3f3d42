// What is done by hand is a script: played headless it gives the same journal.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import {
  andCommand,
  journalHas,
  onScreen,
  openPanel,
  pass,
  phoneTest,
  press,
  simulator,
} from "./harness.mjs";

// The time stands in a column before it.
const withoutTime = (line) => line.replace(/^ *[\d.]+ {2}/, "");

phoneTest("a night by hand, replayed", {}, async (served, page) => {
  await openPanel(served, page);
  const minutes = await onScreen(page, "spinbutton", "min").boundingBox();
  await page.mouse.move(minutes.x + minutes.width / 2, minutes.y + minutes.height / 2);
  await page.mouse.down();
  await page.mouse.move(minutes.x + minutes.width / 2, minutes.y, { steps: 4 });
  await andCommand(page, "touch ended", () => page.mouse.up());
  await pass(served, 3);
  await press(page, onScreen(page, "button", "Confirm"));
  await journalHas(page, 'post "DozewellDidStartNotification"');
  await pass(served, 100);
  await andCommand(page, "volume", () => page.click(".up-key"));
  await andCommand(page, "lock", () => page.click(".lock-key"));
  await pass(served, 4000);
  await journalHas(page, "-[SBMediaController pauseForEventSource:0]");

  const [download] = await Promise.all([
    page.waitForEvent("download"),
    page.click("#download-recording"),
  ]);
  const file = `${served.folder}/recording.phone`;
  await download.saveAs(file);
  const replayed = execFileSync(simulator, ["play", file], { encoding: "utf8" })
    .trimEnd()
    .split("\n")
    .map(withoutTime);
  assert.deepEqual(replayed, await served.journal());
});
