// Time: faster, standing still, from event to event, to the timer's last seconds.
import assert from "node:assert/strict";
import { journalHas, openPanel, onScreen, phoneTest, press, timeAnswer } from "./harness.mjs";

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
    if (await page.locator("#hint", { hasText: "fades:" }).count()) return;
    await timeAnswer(page, () => page.click("#time-step"));
  }
  assert.fail("the fade did not begin");
});

const hint = (page, text) => page.locator("#hint", { hasText: text }).waitFor();
const reason = (page, text) => page.locator("#time-end-reason", { hasText: text }).waitFor();
const start = "send Dozewell2Manager.sharedInstance startTimerWithMode:andValue:";

phoneTest(
  "the page tells when the music stops and what happens then, and that it fades",
  {},
  async (served, page) => {
    await page.locator("#time-end:disabled").waitFor();
    await reason(page, "No timer runs");
    await served.run("set onTimerEndsAirplane YES", `${start} 0 300`, "advance 100s");
    await hint(page, "In 3:20 the music fades, then stops.");
    await hint(page, "The fade takes 15 seconds. Then airplane mode goes on.");
    await served.run("set onTimerEndsAirplane NO", "set volumeFadeOutEnabled NO");
    await hint(page, "The music stops in 3:20.");
    assert.ok(!(await page.locator("#hint").textContent()).includes("airplane"));
    await served.run("set volumeFadeOutEnabled YES", "advance 205s");
    await hint(page, /The music fades: 3\d % are left/);
    await reason(page, "The music fades already.");
    await served.run("advance 20s");
    await hint(page, "The music has stopped. Good night.");
    await served.post("/api/setup", { lines: [] });
    await page.locator("#hint", { hasNotText: "Good night" }).waitFor();
    await served.run(`${start} 1 2`);
    await hint(page, "The music stops after 2 songs, this one included.");
    assert.equal(await page.textContent("#time-end"), "To the end of this song");
    await timeAnswer(page, () => page.click("#time-end"));
    await hint(page, "The music stops at the end of this song.");
    await timeAnswer(page, () => page.click("#time-end"));
    await hint(page, "The music has stopped.");
  },
);

phoneTest("no message lies over what the page tells", {}, async (served, page) => {
  await served.run(`${start} 0 300`);
  await page.evaluate(async () => {
    const { toast } = await import(new URL("ui/toast.js", document.baseURI));
    for (let count = 0; count < 3; ++count) toast("A message that is not short at all.", "problem");
  });
  const told = await page.locator("#hint").boundingBox();
  const toasts = await page.locator("#toasts").boundingBox();
  assert.ok(toasts.y + toasts.height < told.y);
});

phoneTest("the slider leads back to any moment of the night", {}, async (served, page) => {
  await served.run(`${start} 0 300`, "advance 100s", "volume 0.25", "advance 500s");
  await page.locator("#hint", { hasText: "Good night" }).waitFor();
  const slide = (uptime) =>
    page.locator("#night").evaluate((night, value) => {
      night.value = value;
      night.dispatchEvent(new Event("input"));
      night.dispatchEvent(new Event("change"));
    }, uptime);
  await slide(200);
  await hint(page, "In 1:40 the music fades");
  await page.locator(".night-line output", { hasText: "3:20 of 10:00" }).waitFor();
  assert.equal(await page.inputValue("#volume"), "0.25");
  await slide(50);
  await hint(page, "In 4:10 the music fades");
  await slide(600);
  await page.locator(".night-line output", { hasText: "10:00 of 10:00" }).waitFor();
});

phoneTest(
  "a song that repeats is not promised to stop the music",
  { serve: ["--paused", "--no-music"] },
  async (served, page) => {
    await served.run('playlist "A" 100 "B" 100', "play", "repeat-one YES", `${start} 1 1`);
    await hint(page, "This title plays again, which does not count");
    await reason(page, "This title plays again: its end stops nothing.");
    await served.run("advance 300s");
    assert.ok(!(await served.journal()).includes("-[SBMediaController pauseForEventSource:0]"));
    await served.run("repeat-one NO");
    await hint(page, "The music stops at the end of this song.");
    await served.run("repeat-one YES", "set letTheSongFinishEnabled YES", `${start} 0 300`);
    await hint(page, "The timer ends in 5:00, the music only when another title begins.");
  },
);

phoneTest(
  "times are those of the phone's region, as its clock shows them",
  {},
  async (served, page) => {
    await served.run("volume 0.8");
    const row = page.locator("#entries .entry", { hasText: "You set the volume" });
    assert.match(await row.locator("time").first().textContent(), /^\d+:\d\d:\d\d [AP]M$/);
    await served.post("/api/setup", { lines: ["locale de_DE"] });
    await row.waitFor({ state: "detached" });
    await served.run("volume 0.8");
    assert.match(await row.locator("time").first().textContent(), /^\d\d:\d\d:\d\d$/);
  },
);
