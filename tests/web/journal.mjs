// The journal: a story, the lines it consists of, and what they mean.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { phoneTest, simulator, soWithin } from "./harness.mjs";

phoneTest("every entry of the journal can be looked at", {}, async (served, page) => {
  await served.run("volume 0.8");
  await page.locator("#entries .entry-line", { hasText: "You set the volume to 80 %" }).click();
  await page.locator(".entry-details", { hasText: "You set the volume to 80 %" }).waitFor();
  await page.locator(".entry-details pre", { hasText: "user volume 0.8" }).waitFor();
  await page.fill("#journal-filter", "volume");
  await page.locator("#entries code", { hasText: "user volume 0.8" }).waitFor();
  assert.ok(
    (await page.locator("#entries code").allTextContents()).every((text) =>
      text.toLowerCase().includes("volume"),
    ),
  );
});

const start = "send Dozewell2Manager.sharedInstance startTimerWithMode:andValue:";
const night = [
  'bluetooth "Pillow"',
  ...["onTimerEndsAirplane", "onTimerEndsDND", "onTimerEndsBluetooth"].map(
    (name) => `set ${name} YES`,
  ),
  `${start} 0 60`,
  "advance 100s",
];

const told = (page) => page.locator("#entries .piece").allTextContents();

phoneTest("the night is told as a person would", {}, async (served, page) => {
  await served.run(...night);
  await page.locator("#entries .piece", { hasText: "“Pillow” is disconnected" }).waitFor();
  const story = await told(page);
  const from = story.indexOf("The sleep timer is set");
  assert.deepEqual(
    story.slice(from).filter((text) => !text.endsWith(" plays")),
    [
      "The sleep timer is set",
      "The timer runs out",
      "The volume fades to 0 %",
      "The music pauses",
      "Airplane mode goes on",
      "Do Not Disturb goes on",
      "“Pillow” is disconnected",
      "The volume goes to 50 %",
    ],
  );
});

// A line that the phone has really written, and what must be said of it.
const lines = [
  [/^-\[CSTimerViewController setEndDate:nil/, /no longer/],
  [/^-\[CSTimerViewController setEndDate:2/, /counts down to the timer's end/],
  [/setObject:2 forKey:.*persistedNbTracksLeft/, /The songs left, 2, are written down/],
  [/setObject:.*persistedTimerDate/, /The timer's end is written down/],
  [/^MRMediaRemoteSendCommand/, /skips to the next song/],
  [/^-\[SBVolumeControl setVolume:-/, /sets the volume to 0 %/],
  [/^player track "B"/, /“B” begins/],
  [/^player stop/, /Nothing plays/],
  [/^-\[DNDModeAssertionService/, /Do Not Disturb goes on/],
  [/^-\[BluetoothManager disconnect/, /The connection to “Pillow” is ended/],
  [/^-\[RunwrightManager run/, /“Dozewell End” is run/],
  [/^BKSTerminate/, /is closed/],
  [/^HUD volume/, /display is shown/],
  [/^user lock$/, /Done by hand: lock/],
  [/^Clock timer starts/, /Done by hand: Clock timer starts/],
  [/^-\[HBPreferences setBool:NO/, /becomes NO/],
  [/^the host crashed/, /has died/],
];
const script = `shortcuts "Dozewell End"
bluetooth "Pillow"
set onTimerEndsDND YES
set onTimerEndsBluetooth YES
set onTimerEndsRunShortcut YES
set onTimerEndsKillNowPlayingApp YES
boot
playlist "A" 300 "B" 300 "C" 300
lock
volume 0.55
volume-up
${start} 0 60
advance 100s
playlist "A" 300 "B" 300 "C" 300
${start} 1 2
send Dozewell2Manager.sharedInstance reinit
send SpecialTasksHelper.getInstance skipSong
unlock
let home UIApplication.sharedApplication.keyWindow.rootViewController.view
tap $home.subviews.8
advance 1s
touch began 110 247
touch ended 110 247
touch began 195 832
touch ended 195 832
advance 1s
control-center open
module expand
tap $header.dozewellButton
advance 1s
let panel Dozewell2Manager.sharedInstance.dozewell2VC
tap $panel.chooseSnoozeTimeView.rightButton
advance 10s
expect-crash send NSArray.array objectAtIndex: 5
`;

phoneTest("what is said of a line is true of the lines there are", {}, async (served, page) => {
  const file = served.write("lines.phone", script);
  const journal = execFileSync(simulator, ["play", file], { encoding: "utf8" })
    .trimEnd()
    .split("\n")
    .map((line) => line.replace(/^ *[\d.]+ {2}/, ""));
  const said = await page.evaluate(async (texts) => {
    const { explain } = await import(new URL("journal/meaning.js", document.baseURI));
    return texts.map((text) => explain(text).meaning);
  }, journal);
  for (const [line, meaning] of lines) {
    const found = journal.map((text, n) => [text, said[n]]).filter(([text]) => line.test(text));
    assert.ok(found.length > 0, `no line ${line}`);
    for (const [text, words] of found) assert.match(words ?? "", meaning, text);
  }
  assert.deepEqual(
    journal.filter((_, n) => said[n] === null),
    [],
  );
});

phoneTest("a piece leads to the moment before it", {}, async (served, page) => {
  await served.run(...night);
  await page.locator("#entries .entry-line", { hasText: "The music pauses" }).click();
  const before = page.locator(".detail", { hasText: "pauseForEventSource" }).getByRole("button");
  const whole = await served.journal();
  await before.click();
  await page.locator("#hint", { hasText: "The music fades: 0 %" }).waitFor();
  const pause = whole.findIndex((text) => text.includes("pauseForEventSource"));
  assert.deepEqual(await served.journal(), whole.slice(0, pause));
});

phoneTest("the timeline shows the end of a long night", {}, async (served, page) => {
  await served.run("unlock", "advance 8h", "volume 0.8", "lock", "advance 20s", "unlock");
  const marks = page.locator("#timeline .mark.user");
  const spread = () =>
    marks.evaluateAll((all) => {
      const places = all.map((mark) => mark.x1.baseVal.value).filter((x) => x > 500);
      return Math.max(...places) - Math.min(...places);
    });
  const later = '#entries .entry:has-text("You set the volume") ~ .entry .piece';
  await page.locator(later, { hasText: "You unlock" }).waitFor();
  await page.getByRole("button", { name: "The night's end" }).click();
  const far = await spread();
  const place = await marks.last().boundingBox();
  await page.mouse.move(place.x + place.width / 2, place.y);
  for (let times = 0; times < 6; ++times) await page.mouse.wheel(0, -100);
  while ((await spread()) === far) await page.mouse.wheel(0, -100);
  assert.ok((await spread()) > far);
  await page.getByRole("button", { name: "The night's end" }).click();
  const box = await marks.last().boundingBox();
  await page.mouse.click(box.x + box.width / 2, box.y + 2);
  await page.locator("#entries .entry-details").waitFor();
});

phoneTest("lines that a burst leaves out are counted", {}, async (served, page) => {
  await served.run("repeat 1500 volume 0.5 then volume 0.6");
  const gap = page.locator("#entries .gap");
  const { length } = await served.journal();
  const known = () =>
    page.evaluate(async () => {
      const { state } = await import(new URL("main.js", document.baseURI)); // the page's own
      const { journal } = state;
      const afterGap = journal.findLast(({ n }, at) => n - (journal[at - 1]?.n ?? 0) > 1);
      const gaps = [...document.querySelectorAll("#entries .gap")];
      const leftOut = gaps.reduce((sum, row) => sum + Number.parseInt(row.textContent, 10), 0);
      return { missing: afterGap?.n ?? 0, lines: leftOut + journal.length };
    });
  // The burst may come in several pieces, each with a gap before it.
  const until = Date.now() + soWithin;
  let found = await known();
  while (found.lines !== length && Date.now() < until) found = await known();
  assert.equal(found.lines, length);
  assert.ok(found.missing > 1000);
  await page.reload();
  await page.click("#start-silent");
  await page.locator("#entries .gap", { hasText: `${length - 1000} lines are left out` }).waitFor();
  assert.equal(await gap.locator("a").getAttribute("href"), "api/journal");
  await page.selectOption("#journal-kind", "all");
  await page.locator("#entries .gap", { hasText: `${length - 600} lines are left out` }).waitFor();
});
