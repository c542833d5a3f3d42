// The brightness of Control Center's slider: a layer over the screen, and a line that says it.
import assert from "node:assert/strict";
import { onScreen, pass, phoneTest } from "./harness.mjs";

const layer = (page) =>
  page.locator("#glass .light").evaluate((light) => {
    const { opacity, backgroundColor } = getComputedStyle(light);
    return { opacity: Number(opacity), backgroundColor };
  });

phoneTest("a screen made darker is darker, and stays in sight", {}, async (served, page) => {
  await served.run("unlock", "control-center open");
  await pass(served, 1);
  assert.equal((await layer(page)).opacity, 0);
  const slider = onScreen(page, "slider", "Brightness");
  const { x, y, width, height } = await slider.boundingBox();
  await page.mouse.move(x + width / 2, y + height / 2);
  await page.mouse.down();
  await page.mouse.move(x + width / 2, y + height * 2, { steps: 4 });
  await page.mouse.up();
  await page.locator("#entries .piece", { hasText: "You set the brightness to 0 %" }).waitFor();
  const dark = await layer(page);
  assert.equal(dark.backgroundColor, "rgb(0, 0, 0)");
  assert.ok(dark.opacity > 0.5 && dark.opacity < 0.8, `${dark.opacity}`);
  assert.equal(await slider.getAttribute("aria-valuetext"), "0%");
});
