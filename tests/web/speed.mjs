// What a page costs before it is seen, which has a limit, and how fast the phone follows a finger,
// which is only reported: how fast this machine is at this moment is no property of the program.
import assert from "node:assert/strict";
import { test } from "node:test";
import { openPage, openPanel, onScreen, Served } from "./harness.mjs";

const mostBytes = 100_000; // on the wire, until the phone is seen
const moves = 120;

// Of all that the page asks for until the phone is seen, by what it is.
async function transferred(page) {
  const session = await page.context().newCDPSession(page);
  const addresses = new Map();
  const bytes = { fonts: 0, others: 0 };
  session.on("Network.requestWillBeSent", ({ requestId, request }) =>
    addresses.set(requestId, request.url),
  );
  session.on("Network.dataReceived", ({ requestId, dataLength, encodedDataLength }) => {
    const address = addresses.get(requestId);
    if (address === undefined) return; // still for the page that is being left
    const isStream = address.includes("/api/events"); // what of it is on the wire is not told
    bytes[address.includes("/fonts/") ? "fonts" : "others"] += isStream
      ? dataLength
      : encodedDataLength;
  });
  await session.send("Network.enable");
  await session.send("Network.setCacheDisabled", { cacheDisabled: true });
  await page.reload({ waitUntil: "load" });
  await page.locator('body[data-server="open"]').waitFor();
  await page.locator("#glass text").first().waitFor();
  await session.detach();
  return bytes;
}

// Milliseconds from each movement of a finger to the frame that shows the wheel elsewhere.
function followed(page, box, count) {
  return page.evaluate(
    async ({ x, y, height, times }) => {
      const glass = document.getElementById("glass");
      const frame = () => new Promise(requestAnimationFrame);
      const changed = () =>
        new Promise((resolve) => {
          const observer = new MutationObserver(async () => {
            observer.disconnect();
            // This frame draws the change; the next begins when it has been drawn.
            await frame();
            resolve();
          });
          observer.observe(glass, { attributes: true, childList: true, subtree: true });
        });
      const point = (type, clientY) =>
        new PointerEvent(type, { bubbles: true, pointerId: 7, clientX: x, clientY, button: 0 });
      glass.setPointerCapture = () => {}; // there is no such pointer
      glass.dispatchEvent(point("pointerdown", y));
      const needed = [];
      for (let index = 1; index <= times; ++index) {
        const seen = changed();
        const began = performance.now();
        glass.dispatchEvent(point("pointermove", y + ((index * 7) % height)));
        await seen;
        needed.push(performance.now() - began);
        await frame();
      }
      glass.dispatchEvent(point("pointerup", y));
      return needed.sort((one, other) => one - other);
    },
    { ...box, times: count },
  );
}

// How many changes of the screen come in a second in which a finger never rests.
const updates = (page, { x, y, height }) =>
  page.evaluate(
    async (place) => {
      const { state } = await import(new URL("main.js", document.baseURI)); // the page's own
      const glass = document.getElementById("glass");
      const point = (type, clientY) =>
        new PointerEvent(type, {
          bubbles: true,
          pointerId: 7,
          clientX: place.x,
          clientY,
          button: 0,
        });
      let count = 0;
      state.on("scene", () => ++count);
      glass.dispatchEvent(point("pointerdown", place.y));
      const end = performance.now() + 1000;
      for (let index = 1; performance.now() < end; ++index) {
        glass.dispatchEvent(point("pointermove", place.y + ((index * 7) % place.height)));
        await new Promise(requestAnimationFrame);
      }
      glass.dispatchEvent(point("pointerup", place.y));
      return count;
    },
    { x, y, height },
  );

test("the page is small, and follows a finger", async (context) => {
  const served = await new Served([]).start();
  try {
    const page = await openPage(served);
    const bytes = await transferred(page);
    context.diagnostic(`${bytes.others} bytes until the phone is seen, ${bytes.fonts} of letters`);
    assert.ok(bytes.others > 10_000 && bytes.others < mostBytes, `${bytes.others} bytes`);
    const late = await page.evaluate(() =>
      [...document.fonts].every(({ display }) => display === "swap"),
    );
    assert.ok(late, "letters are waited for");
    await page.click("#start-silent");
    await openPanel(served, page);
    const box = await onScreen(page, "spinbutton", "min").boundingBox();
    const middle = { x: box.x + box.width / 2, y: box.y + box.height / 3, height: box.height / 3 };
    const needed = await followed(page, middle, moves);
    const at = (part) => needed[Math.floor(part * needed.length)].toFixed(1);
    context.diagnostic(`finger to pixel: median ${at(0.5)} ms, 99 % within ${at(0.99)} ms`);
    context.diagnostic(`${await updates(page, middle)} changes of the screen in a second`);
    await page.context().close();
  } finally {
    await served.close();
  }
});
