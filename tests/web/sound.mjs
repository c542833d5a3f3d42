// The music that is heard: real files, a fade that goes down, a pause that is one, a volume that is
// back.
import assert from "node:assert/strict";
import { journalHas, openPage, phoneTest, Served } from "./harness.mjs";
import { tone } from "./tones.mjs";

// What the page's audio element and the gain behind it do at this moment.
const heard = (page) =>
  page.evaluate(async () => {
    const { output } = await import(new URL("main.js", document.baseURI)); // the page's own
    const { element } = output;
    return {
      paused: element.paused,
      at: element.currentTime,
      level: output.level,
      file: element.getAttribute("src"),
    };
  });

// Asks again and again, as the browser draws, until it is so.
async function until(page, what, isSo) {
  const end = Date.now() + 20_000;
  for (;;) {
    const state = await heard(page);
    if (isSo(state)) return state;
    if (Date.now() > end) throw new Error(`never ${what}: ${JSON.stringify(state)}`);
    await page.evaluate(() => new Promise(requestAnimationFrame));
  }
}

async function withMusic(body) {
  const served = new Served([]);
  served.write("One Note.wav", tone(120));
  served.options = [served.folder];
  await served.start();
  try {
    await body(served);
  } finally {
    await served.close();
  }
}

phoneTest.withoutPhone("the fade is heard, the pause is real, the volume comes back", () =>
  withMusic(async (served) => {
    const page = await openPage(served, { silent: false });
    await page.click("#start-listening");
    const playing = await until(page, "playing", ({ paused, at }) => !paused && at > 0);
    assert.match(playing.file, /^music\//);
    await served.run(
      "volume 0.8",
      "set volumeFadeOutTime 5",
      "send Dozewell2Manager.sharedInstance startTimerWithMode:andValue: 0 60",
    );
    await until(page, "at full level", ({ level }) => Math.abs(level - 0.8) < 0.01);
    await served.post("/api/time", { beforeEnd: 4 });
    await until(page, "at the new place", ({ at }) => at > 55);

    const levels = [];
    const rested = await until(page, "paused", (state) => {
      levels.push(state.level);
      return state.paused;
    });
    const falling = levels.filter((level) => level > 0.02 && level < 0.78);
    assert.ok(falling.length > 5, `the fade was seen at ${falling.length} levels only`);
    assert.ok(
      falling.every((level, index) => index === 0 || level <= falling[index - 1] + 1e-6),
      "the level rose within the fade",
    );
    assert.ok(rested.level < 0.1, `paused at level ${rested.level}`);
    await journalHas(page, "-[SBMediaController pauseForEventSource:0]");
    const back = await until(
      page,
      "at the old volume",
      ({ level }) => Math.abs(level - 0.8) < 0.01,
    );
    assert.ok(back.paused);
    await page.context().close();
  }),
);

phoneTest.withoutPhone(
  "there is no sound before somebody asked for it, nor while time runs fast",
  () =>
    withMusic(async (served) => {
      const page = await openPage(served, { silent: false });
      await page.locator("#start-listening").waitFor();
      assert.ok((await heard(page)).paused);
      await page.click("#start-listening");
      await until(page, "playing", ({ paused }) => !paused);
      await served.post("/api/time", { speed: 60 });
      await until(page, "silent", ({ paused }) => paused);
      await page.locator("#sound-chip", { hasText: "faster" }).waitFor();
      await served.post("/api/time", { speed: 1 });
      await until(page, "playing again", ({ paused }) => !paused);
      await page.context().close();
    }),
);

phoneTest.withoutPhone("one of two pages makes the sound, the one that was asked last", () =>
  withMusic(async (served) => {
    const first = await openPage(served, { silent: false });
    await first.click("#start-listening");
    await until(first, "playing", ({ paused }) => !paused);
    const second = await openPage(served, { silent: false });
    await second.locator("#start-silent").click();
    assert.ok((await heard(second)).paused);
    await second.click("#sound-chip");
    await until(second, "playing", ({ paused }) => !paused);
    await until(first, "silent", ({ paused }) => paused);
    await first.locator("#sound-chip", { hasText: "Play sound here" }).waitFor();
    await second.context().close();
    await first.click("#sound-chip");
    await until(first, "playing once more", ({ paused }) => !paused);
    await first.context().close();
  }),
);

phoneTest(
  "music that is brought along is heard, and stays in the page",
  { serve: ["--no-music"], page: { silent: false } },
  async (served, page) => {
    await page.locator("#panel-music .inviting", { hasText: "never leave it" }).waitFor();
    assert.ok(await page.isDisabled("#play-pause"));
    await page.click("#start-listening");
    const sent = [];
    page.on("request", (request) => sent.push(request.postData() ?? ""));
    await page.setInputFiles("#choose-music", [
      { name: "Corvane - Low Tide.wav", mimeType: "audio/wav", buffer: tone(30) },
      { name: "broken.mp3", mimeType: "audio/mpeg", buffer: Buffer.from("no music") },
    ]);
    await page.locator(".toast.problem", { hasText: "broken.mp3" }).waitFor();
    await page.locator("#tracks .track", { hasText: "Low Tide" }).click();
    await served.post("/api/time", { paused: false });
    await until(
      page,
      "heard",
      ({ file, paused, at }) => file?.startsWith("blob:") && !paused && at > 0.2,
    );
    assert.ok(sent.every((body) => !body.includes("RIFF")));
    assert.ok((await served.read("api/recording.phone")).includes('"Low Tide" 30 by "Corvane"'));
  },
);
