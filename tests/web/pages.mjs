// Several pages on one phone.
import assert from "node:assert/strict";
import { andCommand, journalHas, openPage, phoneTest } from "./harness.mjs";

phoneTest("what one page does, the other shows", {}, async (served, page) => {
  const other = await openPage(served);
  await andCommand(page, "control-center open", () => page.click("#device-controls"));
  await other.locator('#device-controls[aria-pressed="true"]').waitFor();
  await journalHas(other, "user control-center open");
  await page.click("#tab-settings");
  await andCommand(page, "set", () => page.locator("#setting-volumeFadeOutEnabled").click());
  await other.click("#tab-settings");
  await other.locator("#setting-volumeFadeOutEnabled:not(:checked)").waitFor();
  await other.context().close();
  await andCommand(page, "control-center close", () => page.click("#device-home"));
});

phoneTest(
  "a duplicated tab, which has a copy of the first one's name, takes a name of its own",
  {},
  async (served, page) => {
    const other = await page.context().newPage();
    const name = await page.evaluate(() => sessionStorage.getItem("dozewell.page"));
    await other.addInitScript(
      (copied) =>
        sessionStorage.getItem("dozewell.page") ?? sessionStorage.setItem("dozewell.page", copied),
      name,
    );
    await other.goto(served.address);
    await other.locator('body[data-server="open"]').waitFor();
    assert.notEqual(await other.evaluate(() => sessionStorage.getItem("dozewell.page")), name);
  },
);
