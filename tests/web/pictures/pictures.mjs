// usage: pictures.mjs FOLDER, with the environment of the browser tests: takes the README's
// pictures.
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
    await andCommand(page, "scroll", () => page.keyboard.press("ArrowDown"));
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

await closeBrowser();
