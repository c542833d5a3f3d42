// The road of one timer with the keyboard alone.
import assert from "node:assert/strict";
import { andCommand, journalHas, onScreen, openPanel, pass, phoneTest, press } from "./harness.mjs";

// Tab until the element has the focus: it must be reachable that way.
async function tabTo(page, locator) {
  for (let steps = 0; steps < 120; ++steps) {
    if (await locator.evaluate((element) => element === document.activeElement)) return;
    await page.keyboard.press("Tab");
  }
  throw new Error("the keyboard does not reach it");
}

phoneTest("a timer is set with tab, arrows and enter", {}, async (served, page) => {
  await tabTo(page, page.locator("#device-controls"));
  await andCommand(page, "control-center open", () => page.keyboard.press("Enter"));
  await pass(served, 1);
  await tabTo(page, onScreen(page, "button", "Sleep timer"));
  await andCommand(page, "touch ended", () => page.keyboard.press("Enter"));
  await pass(served, 1);
  await tabTo(page, onScreen(page, "spinbutton", "min"));
  assert.ok(await page.locator(".focus-ring").isVisible());
  for (const key of ["ArrowDown", "ArrowDown", "ArrowUp"])
    await andCommand(page, "scroll", () => page.keyboard.press(key));
  await page.locator('#glass [aria-label="min"][aria-valuetext="10"]').waitFor();
  await tabTo(page, onScreen(page, "button", "Confirm"));
  await andCommand(page, "touch ended", () => page.keyboard.press(" "));
  await journalHas(page, 'post "DozewellDidStartNotification"');
  await page.locator("#announcer", { hasText: "timer is set" }).waitFor({ state: "attached" });
});

phoneTest("escape leaves Control Center", {}, async (served, page) => {
  await andCommand(page, "control-center open", () => page.click("#device-controls"));
  await pass(served, 1);
  await onScreen(page, "button", "Sleep timer").focus();
  await andCommand(page, "control-center close", () => page.keyboard.press("Escape"));
});

phoneTest("what dissolves can be reached no more", {}, async (served, page) => {
  await openPanel(served, page);
  await press(page, onScreen(page, "button", "Timer actions"));
  // The old page is seen until time goes on.
  const old = page.locator("#glass .node[aria-hidden] .node[tabindex]");
  await old.first().waitFor({ state: "attached" });
  const reached = await old.evaluateAll((elements) =>
    elements.filter((element) => {
      element.focus();
      return element === document.activeElement;
    }),
  );
  assert.equal(reached.length, 0);
  await onScreen(page, "button", "Shortcut").focus();
});

phoneTest("an alert is read out and answered", {}, async (served, page) => {
  await openPanel(served, page);
  await andCommand(page, "touch ended", () =>
    onScreen(page, "button", "Timer actions").press("Enter"),
  );
  await pass(served, 1);
  await andCommand(page, "touch ended", () => onScreen(page, "button", "Shortcut").press("Enter"));
  await pass(served, 1);
  const alert = page.locator("#glass").getByRole("alertdialog");
  await alert.waitFor();
  const title = await alert.getAttribute("aria-label");
  await page.locator("#announcer", { hasText: title }).waitFor({ state: "attached" });
  // What lies behind it cannot be reached any more.
  assert.equal(await onScreen(page, "button", "Shortcut").count(), 0);
  await andCommand(page, "touch ended", () => alert.getByRole("button").first().press("Enter"));
  await pass(served, 1);
  await alert.waitFor({ state: "detached" });
});
