// 375 pixels are enough, and so are 1920: everything is reachable, nothing overflows.
import assert from "node:assert/strict";
import { openPanel, phoneTest } from "./harness.mjs";

const overflow = (page) => page.evaluate(() => document.documentElement.scrollWidth - innerWidth);

phoneTest(
  "375 pixels wide, one thing at a time",
  { page: { viewport: { width: 375, height: 667 } } },
  async (served, page) => {
    const glass = await page.locator("#glass").boundingBox();
    assert.ok(glass.width > 180 && glass.x >= 0 && glass.x + glass.width <= 375);
    for (const name of ["music", "time", "journal", "settings", "setup", "script", "phone"]) {
      await page.click(`#tab-${name}`);
      await page.locator(name === "phone" ? "#phone" : `#panel-${name}`).waitFor();
      assert.equal(await overflow(page), 0, name);
    }
  },
);

phoneTest(
  "1920 pixels wide, everything at once",
  { page: { viewport: { width: 1920, height: 1080 } } },
  async (served, page) => {
    for (const id of ["#glass", "#panel-music", "#panel-time", "#panel-journal", "#device"])
      assert.ok(await page.locator(id).isVisible(), id);
    assert.equal(await overflow(page), 0);
  },
);

phoneTest("the phone turns and still takes touches where they are", {}, async (served, page) => {
  await page.click("#device-rotate");
  // The page's policy keeps out what playwright would wait with.
  await page.evaluate(async () => {
    const isTurned = () => {
      const { width, height } = document.getElementById("glass").getBoundingClientRect();
      return width > height && document.getElementById("handset").getAnimations().length === 0;
    };
    while (!isTurned()) await new Promise(requestAnimationFrame);
  });
  await openPanel(served, page);
});
