// axe-core finds nothing on the page, in whatever it shows.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { join } from "node:path";
import { onScreen, openPanel, pass, phoneTest, press } from "./harness.mjs";

const require = createRequire(join(process.env.DOZEWELL_NODE_MODULES, "needed-by-tests.js"));
const axe = readFileSync(require.resolve("axe-core/axe.min.js"), "utf8");

// What is wrong, one line each.
async function audit(page, where) {
  await page
    .evaluate(async () => {
      for (const animation of document.getAnimations()) animation.finish?.();
    })
    .catch(() => {}); // endless ones have no end
  const { violations } = await page.evaluate(() => globalThis.axe.run());
  return violations.flatMap(({ id, nodes }) =>
    nodes.map(({ target, failureSummary }) => `${where}: ${id}: ${target}: ${failureSummary}`),
  );
}

// By which a panel is known to be there: some are fetched when they are first shown.
const content = {
  journal: ".entry-line",
  settings: ".setting",
  setup: ".setting",
  script: "button",
  inside: ".view-tree button",
};

const closed = { silent: false };

phoneTest("an audit finds nothing", { page: closed }, async (served, page) => {
  await page.evaluate(axe);
  const found = await audit(page, "at first");
  await page.click("#start-silent");
  await openPanel(served, page);
  found.push(...(await audit(page, "the panel")));
  await press(page, onScreen(page, "button", "Timer actions"));
  await pass(served, 1);
  found.push(...(await audit(page, "the actions")));
  await press(page, onScreen(page, "button", "Shortcut"));
  await pass(served, 2);
  found.push(...(await audit(page, "an alert")));
  await page.locator("#entries .entry-line").first().click();
  for (const name of ["journal", "settings", "setup", "script", "inside"]) {
    await page.click(`#tab-${name}`);
    await page.locator(`#panel-${name}`).locator(content[name]).first().waitFor();
    for (const colorScheme of ["light", "dark"]) {
      await page.emulateMedia({ colorScheme });
      found.push(...(await audit(page, `${name}, ${colorScheme}`)));
    }
  }
  assert.deepEqual(found, []);
});
