// In windows of all sizes, light and dark, with the phone upright and on its side, every control
// can be pressed: none is outside, none under another.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { andCommand, onScreen, pass, phoneTest } from "./harness.mjs";

const sizes = [
  [1400, 900],
  [1024, 768],
  [390, 844],
  [1400, 500],
  [844, 390],
];
const panels = ["journal", "settings", "setup", "script", "inside"];
const narrowPanels = ["phone", "music", "time", ...panels];

// Of every control that is there: what is wrong with where it is.
const misplaced = (page) =>
  page.evaluate(() => {
    const wrong = [];
    const isScrolled = ({ overflowX, overflowY }) =>
      [overflowX, overflowY].some((each) => each === "auto" || each === "scroll");
    // What is seen of it, in the boxes that it lies in; null if it has to be scrolled to.
    const seenOf = (element) => {
      let { left, top, right, bottom } = element.getBoundingClientRect();
      let scrolls = false;
      for (let box = element.parentElement; box; box = box.parentElement) {
        const style = getComputedStyle(box);
        if (style.overflowX === "visible" && style.overflowY === "visible") continue;
        scrolls ||= isScrolled(style) && box !== document.body;
        const clip = box.getBoundingClientRect();
        left = Math.max(left, clip.left);
        top = Math.max(top, clip.top);
        right = Math.min(right, clip.right);
        bottom = Math.min(bottom, clip.bottom);
      }
      const isSeen = right - left > 2 && bottom - top > 2;
      return isSeen || !scrolls ? { left, top, right, bottom } : null;
    };
    const isOfIt = (element, found) =>
      found !== null &&
      (element.contains(found) ||
        found.contains(element) ||
        (element.labels && [...element.labels].some((label) => label.contains(found))));
    const controls = document.querySelectorAll(
      "button, a[href], input, select, textarea, summary, #glass",
    );
    for (const element of controls) {
      if (element.closest(".visually-hidden, .skip, [inert], #glass .node")) continue;
      if (!element.checkVisibility({ opacityProperty: false }) || element.disabled) continue;
      const name = element.id || element.getAttribute("aria-label") || element.textContent;
      const box = seenOf(element);
      if (box === null) continue;
      const isOutside =
        box.left < -1 ||
        box.top < -1 ||
        box.right > innerWidth + 1 ||
        box.bottom > innerHeight + 1 ||
        box.right <= box.left ||
        box.bottom <= box.top;
      const middle = [(box.left + box.right) / 2, (box.top + box.bottom) / 2];
      const found = document.elementFromPoint(...middle);
      if (isOutside) wrong.push(`${name} is outside: ${JSON.stringify(box)}`);
      else if (!isOfIt(element, found))
        wrong.push(`${name} is under ${found?.id || found?.className || "nothing"}`);
    }
    return wrong;
  });

const settled = (page) =>
  page.evaluate(async () => {
    await new Promise(requestAnimationFrame);
    for (const animation of document.getAnimations())
      if (animation.effect.getComputedTiming().endTime !== Infinity) animation.finish();
    await new Promise(requestAnimationFrame);
  });

async function lookEverywhere(page, what) {
  const found = [];
  for (const [width, height] of sizes) {
    await page.setViewportSize({ width, height });
    const isNarrow = width < 820 || height < 560;
    for (const panel of isNarrow ? narrowPanels : panels) {
      await page.click(`#tab-${panel}`);
      await settled(page);
      const wrong = await misplaced(page);
      found.push(...wrong.map((each) => `${width} x ${height}, ${what}, ${panel}: ${each}`));
    }
  }
  return found;
}

const glassSize = (page) => page.locator("#glass").boundingBox();

phoneTest("every control is in its place in every window", {}, async (served, page) => {
  const found = [];
  for (const colorScheme of ["light", "dark"]) {
    await page.emulateMedia({ colorScheme, reducedMotion: "reduce" });
    found.push(...(await lookEverywhere(page, `${colorScheme}, upright`)));
  }
  await served.run("rotate landscape-left");
  await page.locator("body.sideways").waitFor();
  found.push(...(await lookEverywhere(page, "on its side")));
  assert.deepEqual(found, []);
});

phoneTest("the phone on its side is as wide as there is room", {}, async (served, page) => {
  await page.setViewportSize({ width: 1400, height: 900 });
  await page.emulateMedia({ reducedMotion: "reduce" });
  await served.run("rotate landscape-left");
  await page.locator("body.sideways").waitFor();
  await settled(page);
  const { width } = await glassSize(page);
  assert.ok(width > 800, `${width} pixels`);
});

phoneTest("the phone is shown as large as one likes", {}, async (served, page) => {
  await page.emulateMedia({ reducedMotion: "reduce" });
  for (const [choice, width] of [
    ["1", 390],
    ["2", 780],
  ]) {
    await page.selectOption("#phone-zoom", choice);
    assert.equal(Math.round((await glassSize(page)).width), width);
  }
  // Touches are still where they are seen.
  await andCommand(page, "control-center open", () => page.click("#device-controls"));
  await page.selectOption("#phone-zoom", "");
  assert.ok((await glassSize(page)).width < 390);
});

phoneTest("a picture of the phone is saved", {}, async (served, page) => {
  const [download] = await Promise.all([
    page.waitForEvent("download"),
    page.click("#phone-picture"),
  ]);
  assert.match(download.suggestedFilename(), /^phone-\d{8}-\d{6}\.png$/);
});

phoneTest("a film of the last half minute is saved", {}, async (served, page) => {
  await page.locator("#glass .face").first().waitFor({ state: "attached" });
  // What is shown for less than 200 ms is no frame of its own.
  await page.waitForTimeout(250);
  await served.run("control-center open");
  await pass(served, 1);
  await onScreen(page, "button", "Sleep timer").waitFor();
  const [download] = await Promise.all([page.waitForEvent("download"), page.click("#phone-film")]);
  assert.match(download.suggestedFilename(), /^phone-\d{8}-\d{6}\.apng$/);
  const file = readFileSync(await download.path());
  const frames = file.readUInt32BE(file.indexOf("acTL") + 4);
  assert.ok(frames >= 2, `${frames} frames`);
  // The browser takes it for a picture, and its frames differ.
  const [count, differ] = await page.evaluate(async (base64) => {
    const data = Uint8Array.from(atob(base64), (letter) => letter.charCodeAt(0));
    const decoder = new ImageDecoder({ data, type: "image/png" });
    await decoder.tracks.ready;
    await decoder.completed;
    const total = decoder.tracks.selectedTrack.frameCount;
    const pixels = async (frameIndex) => {
      const { image } = await decoder.decode({ frameIndex });
      const bytes = new Uint8Array(image.allocationSize());
      await image.copyTo(bytes);
      return bytes;
    };
    const [first, last] = [await pixels(0), await pixels(total - 1)];
    return [total, first.filter((byte, index) => byte !== last[index]).length];
  }, file.toString("base64"));
  assert.equal(count, frames);
  assert.ok(differ > 10_000, `${differ} bytes differ`);
});
