// Looking inside: a view is pointed at, and the page says what it is and who handles its touches;
// the lines for scripts work.
import assert from "node:assert/strict";
import { onScreen, openPanel, pass, phoneTest } from "./harness.mjs";

phoneTest("a view that is pointed at is told, and not touched", {}, async (served, page) => {
  await openPanel(served, page);
  const before = await served.journal();
  await page.click("#tab-inside");
  await page.locator("#view-tree button").nth(20).waitFor();
  await page.click("#inside-pick");
  await onScreen(page, "button", "Confirm").click();
  const details = page.locator("#view-details");
  await details.getByText("Dozewell2ViewController").first().waitFor();
  await page.locator('#inside-pick[aria-pressed="false"]').waitFor();
  const said = await details.textContent();
  assert.match(said, /touchUpInside/);
  assert.match(said, /frame\{\{/);
  assert.ok(await page.locator(".view-ring").isVisible());
  const current = page.locator('#view-tree [aria-current="true"]');
  assert.match(await current.textContent(), /UIButton|UILabel/);
  assert.deepEqual(await served.journal(), before);

  // What stands there for a script can be played.
  const lines = await details.locator(".script-lines code").allTextContents();
  assert.equal(lines.length, 3);
  for (const line of lines) await served.run(line);
  assert.match((await served.run(lines[0])).output, /^UI(Button|Label) \{\{/);
});

phoneTest("a view is chosen in the tree by the keyboard", {}, async (served, page) => {
  await served.run("control-center open");
  await pass(served, 1);
  await page.click("#tab-inside");
  const rows = page.locator("#view-tree button");
  await rows.nth(20).waitFor();
  await rows.last().focus();
  await page.keyboard.press("Home");
  await page.keyboard.press("Enter");
  await page.locator("#view-details .view-class", { hasText: "UIWindow" }).waitFor();
  assert.equal(await page.locator("#view-tree [tabindex='0']").count(), 1);
  assert.ok(await rows.first().evaluate((element) => element === document.activeElement));
});
