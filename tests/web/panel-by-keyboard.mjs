// The road of one timer with the keyboard alone.
import assert from "node:assert/strict";
import {
  andCommand,
  journalHas,
  onScreen,
  openPanel,
  pass,
  phoneTest,
  press,
  timeAnswer,
} from "./harness.mjs";

// Tab until the element has the focus: it must be reachable that way.
async function tabTo(page, locator) {
  for (let steps = 0; steps < 120; ++steps) {
    if (await locator.evaluate((element) => element === document.activeElement)) return;
    await page.keyboard.press("Tab");
  }
  throw new Error("the keyboard does not reach it");
}

// What a screen reader says of what has the focus.
async function spoken(page) {
  const session = await page.context().newCDPSession(page);
  const { nodes } = await session.send("Accessibility.getFullAXTree");
  await session.detach();
  const has = (node, name) =>
    node.properties?.some((each) => each.name === name && each.value.value);
  const node = nodes.findLast((each) => !each.ignored && has(each, "focused"));
  if (!node) return "nothing";
  const words = [node.role, node.name, node.value].map((each) => each?.value ?? "");
  return words.filter((each) => each !== "").join(", ");
}

const focusIsOn = (page) =>
  page.evaluate(() => document.activeElement.closest("#glass")?.id ?? document.activeElement.id);

// One key, until the server has answered the command that it makes.
const key = (page, text, name) => andCommand(page, text, () => page.keyboard.press(name));

const wheelIsOn = (page, value) =>
  page.locator(`#glass [aria-label="min"][aria-valuetext="${value}"]`).waitFor();

async function turnTheWheel(page) {
  await tabTo(page, onScreen(page, "spinbutton", "min"));
  assert.ok(await page.locator(".focus-ring").isVisible());
  assert.equal(await spoken(page), "spinbutton, min, 5");
  for (const [name, value] of [
    ["ArrowUp", 10],
    ["ArrowDown", 5],
    ["End", 55],
    ["Home", 5], // no time at all is none: the picker turns on to the next row
    ["PageUp", 30],
    ["3", 5], // the nearest row to 3
    ["5", 35],
  ]) {
    await key(page, "scroll", name);
    await wheelIsOn(page, value);
  }
  assert.equal(await spoken(page), "spinbutton, min, 35");
}

const silence = (page) =>
  page.evaluate(async () => {
    const { output } = await import(new URL("main.js", document.baseURI)); // the page's own
    return !output.allowed;
  });

phoneTest("a night by the keyboard alone", { page: { silent: false } }, async (served, page) => {
  await tabTo(page, page.locator("#start-silent"));
  assert.equal(await spoken(page), "button, Stay silent");
  await page.keyboard.press("Enter");
  assert.ok(await silence(page));
  assert.equal(await focusIsOn(page), "glass");
  await tabTo(page, page.locator("#device-controls"));
  assert.equal(await spoken(page), "button, Control Center");
  await key(page, "control-center open", "Enter");
  await pass(served, 1);

  const moon = onScreen(page, "button", "Sleep timer");
  await tabTo(page, moon);
  assert.equal(await spoken(page), "button, Sleep timer");
  await key(page, "touch ended", "Enter");
  await pass(served, 1);
  assert.equal(await focusIsOn(page), "glass");
  await turnTheWheel(page);
  await tabTo(page, onScreen(page, "button", "Confirm"));
  await key(page, "touch ended", " ");
  await journalHas(page, 'post "DozewellDidStartNotification"');
  await page.locator("#announcer", { hasText: "timer is set" }).waitFor({ state: "attached" });
  await pass(served, 1);
  await onScreen(page, "button", "Confirm").waitFor({ state: "detached" });
  assert.equal(await focusIsOn(page), "glass");

  await tabTo(page, page.locator("#time-end"));
  assert.equal(await spoken(page), "button, 10 s before the end");
  await timeAnswer(page, () => page.keyboard.press("Enter"));
  await tabTo(page, page.locator("#time-minute"));
  await page.keyboard.press("Enter");
  await journalHas(page, "-[SBMediaController pauseForEventSource:0]");
  await page.locator("#announcer", { hasText: "has stopped" }).waitFor({ state: "attached" });
});

phoneTest("escape goes back one level at a time", {}, async (served, page) => {
  await openPanel(served, page);
  await press(page, onScreen(page, "button", "Timer actions"));
  await pass(served, 1);
  await press(page, onScreen(page, "button", "Shortcut"));
  await pass(served, 2);
  const alert = page.locator("#glass").getByRole("alertdialog");
  await alert.getByRole("button").last().focus();
  for (const seen of [
    onScreen(page, "button", "Custom volume"),
    onScreen(page, "spinbutton", "min"),
    onScreen(page, "button", "Sleep timer"),
  ]) {
    await key(page, "touch ended", "Escape");
    await pass(served, 2);
    await seen.waitFor();
    assert.equal(await focusIsOn(page), "glass");
  }
  await onScreen(page, "spinbutton", "min").waitFor({ state: "detached" });
  await key(page, "touch ended", "Escape"); // the module becomes small
  await pass(served, 2);
  await onScreen(page, "button", "Airplane Mode").waitFor(); // the large module hid it
  await key(page, "control-center close", "Escape");
});

phoneTest("the journal is one stop of the tabulator", {}, async (served, page) => {
  await served.run("volume 0.8", "volume 0.7");
  const rows = page.locator("#entries .entry-line");
  await journalHas(page, "user volume 0.7");
  assert.equal(await page.locator("#entries [tabindex='0']").count(), 1);
  await tabTo(page, rows.last());
  await page.keyboard.press("ArrowUp");
  const isFocused = (row) => row.evaluate((element) => element === document.activeElement);
  assert.ok(await isFocused(rows.nth(-2)));
  await page.keyboard.press("Home");
  assert.ok(await isFocused(rows.first()));
  await page.keyboard.press("Tab");
  assert.ok(!(await page.evaluate(() => document.activeElement.closest("#entries"))));
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
