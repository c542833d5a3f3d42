// usage: pictures.mjs FOLDER, with the environment of the browser tests: takes the README's
// pictures.
import { readFileSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import {
  andCommand,
  closeBrowser,
  journalHas,
  onScreen,
  openPage,
  openPanel,
  pass,
  press,
  Served,
} from "../harness.mjs";

const folder = process.argv[2];
const wide = { viewport: { width: 1440, height: 900 } };

// The picture is of what is there once fonts and pictures have come and nothing moves any more.
async function take(page, name, options = {}) {
  await page.mouse.move(2, 2);
  await page.evaluate(async () => {
    await document.fonts.ready;
    await Promise.all([...document.images].map((image) => image.decode().catch(() => {})));
    await Promise.all(
      document
        .getAnimations()
        .filter((each) => each.effect.getComputedTiming().endTime !== Infinity)
        .map((each) => each.finished),
    );
  });
  await page.screenshot({ path: join(folder, `${name}.png`), ...options });
}

async function withPhone(context, body) {
  const served = new Served(["--paused"]);
  await served.start();
  try {
    const page = await openPage(served, context);
    await served.run("unlock");
    await pass(served, 12);
    await body(served, page);
    await page.context().close();
  } finally {
    await served.close();
  }
}

async function turnMinutes(served, page, rows) {
  await onScreen(page, "spinbutton", "min").focus();
  for (let row = 0; row < rows; ++row)
    await andCommand(page, "scroll", () => page.keyboard.press("ArrowUp"));
  await page.evaluate(() => document.activeElement.blur());
  await pass(served, 1);
}

await withPhone({ ...wide, colorScheme: "dark" }, async (served, page) => {
  await openPanel(served, page);
  await turnMinutes(served, page, 5);
  await take(page, "panel");
  await press(page, onScreen(page, "button", "Confirm"));
  await journalHas(page, 'post "DozewellDidStartNotification"');
  await pass(served, 900);
  await andCommand(page, "control-center close", () => page.click("#device-home"));
  await pass(served, 1);
  await andCommand(page, "lock", () => page.click("#device-lock"));
  await pass(served, 1);
  await take(page, "lock-screen");
});

await withPhone({ ...wide, colorScheme: "light" }, async (served, page) => {
  await andCommand(page, "control-center open", () => page.click("#device-controls"));
  await pass(served, 1);
  await page.click("#tab-settings");
  await take(page, "settings");
});

await withPhone({ ...wide, colorScheme: "dark" }, async (served, page) => {
  await press(page, onScreen(page, "button", "Settings"));
  await press(page, onScreen(page, "button", "Dozewell2"));
  await page.click("#tab-settings");
  await pass(served, 1);
  await take(page, "pane");
});

await withPhone(
  { viewport: { width: 375, height: 740 }, colorScheme: "dark", deviceScaleFactor: 2 },
  async (served, page) => {
    await openPanel(served, page);
    await take(page, "narrow");
  },
);

// On the page, which can read and write animated pictures: every third frame at half the width.
async function smaller(base64) {
  const { animated } = await import(new URL("film/apng.js", document.baseURI));
  const data = Uint8Array.from(atob(base64), (letter) => letter.charCodeAt(0));
  const decoder = new ImageDecoder({ data, type: "image/png" });
  await decoder.tracks.ready;
  await decoder.completed;
  const frames = [];
  for (let frameIndex = 0; frameIndex < decoder.tracks.selectedTrack.frameCount; frameIndex += 3) {
    const { image } = await decoder.decode({ frameIndex });
    const canvas = new OffscreenCanvas(image.displayWidth / 2, image.displayHeight / 2);
    canvas.getContext("2d").drawImage(image, 0, 0, canvas.width, canvas.height);
    const blob = await canvas.convertToBlob({ type: "image/png" });
    frames.push({
      png: new Uint8Array(await blob.arrayBuffer()),
      lasts: (3 * image.duration) / 1000,
    });
  }
  const bytes = new Uint8Array(await animated(frames).arrayBuffer());
  return btoa(bytes.reduce((text, byte) => text + String.fromCharCode(byte), ""));
}

// A night in half a minute, filmed by the page itself.
await withPhone({ viewport: { width: 1000, height: 700 } }, async (served, page) => {
  const seconds = (count) => page.waitForTimeout(count * 1000);
  const run = (speed) => served.post("/api/time", { speed, paused: false });
  await run(1);
  await andCommand(page, "control-center open", () => page.click("#device-controls"));
  await seconds(2);
  await press(page, onScreen(page, "button", "Sleep timer"));
  await seconds(2);
  await onScreen(page, "spinbutton", "min").focus();
  await andCommand(page, "scroll", () => page.keyboard.press("ArrowUp"));
  await seconds(2);
  await press(page, onScreen(page, "button", "Confirm"));
  await seconds(3);
  await run(60);
  await seconds(9);
  await run(4);
  await journalHas(page, "SBMediaController pause");
  await run(1);
  await seconds(2);
  const [film] = await Promise.all([page.waitForEvent("download"), page.click("#phone-film")]);
  const bytes = readFileSync(await film.path()).toString("base64");
  writeFileSync(join(folder, "night.png"), await page.evaluate(smaller, bytes), "base64");
});

await closeBrowser();
