// What the browser's own accessibility tree says of the phone's screen: the words, values and
// states that the extension gives its views.
import assert from "node:assert/strict";
import { onScreen, openPanel, pass, phoneTest, press } from "./harness.mjs";

// Of every node in the tree that is not passed over.
async function told(page) {
  const session = await page.context().newCDPSession(page);
  const { nodes } = await session.send("Accessibility.getFullAXTree");
  await session.detach();
  const text = (value) => value?.value ?? "";
  return nodes
    .filter((node) => !node.ignored)
    .map(({ role, name, description, properties = [] }) => ({
      role: text(role),
      name: text(name),
      description: text(description),
      pressed: properties.find((each) => each.name === "pressed")?.value.value,
    }));
}

const find = (nodes, name) => nodes.find((node) => node.name === name);

phoneTest("every button that shows a picture has a name", {}, async (served, page) => {
  await openPanel(served, page);
  let nodes = await told(page);
  for (const name of ["Sleep timer", "Timer actions", "Choose a number of songs"])
    assert.equal(find(nodes, name)?.role, "button", name);
  await press(page, onScreen(page, "button", "Timer actions"));
  await pass(served, 1);
  nodes = await told(page);
  const names = ["Airplane mode", "Do Not Disturb", "Shortcut", "Custom volume", "Back"];
  for (const name of [...names, "Show actions for when the timer ends"])
    assert.equal(find(nodes, name)?.role, "button", name);
});

phoneTest("an action tells whether it is chosen", {}, async (served, page) => {
  await openPanel(served, page);
  await press(page, onScreen(page, "button", "Timer actions"));
  await pass(served, 1);
  const isPressed = async () => find(await told(page), "Do Not Disturb").pressed === "true";
  assert.equal(await isPressed(), false);
  await press(page, onScreen(page, "button", "Do Not Disturb"));
  await page.locator('#glass [aria-label="Do Not Disturb"][aria-pressed="true"]').waitFor();
  assert.equal(await isPressed(), true);
});

phoneTest("the running clock is told in words", {}, async (served, page) => {
  await openPanel(served, page);
  await press(page, onScreen(page, "button", "Confirm"));
  await pass(served, 5);
  await press(page, onScreen(page, "button", "Sleep timer"));
  await pass(served, 60);
  const clock = page.locator("#glass").getByRole("img", { name: /^Sleep timer, .* minutes left$/ });
  await clock.waitFor();
  const nodes = await told(page);
  const name = await clock.getAttribute("aria-label");
  // Once, and neither its digits nor its unit line beside it.
  assert.equal(nodes.filter((node) => node.name === name).length, 1);
  const digits = await clock.locator("text").textContent();
  assert.ok(!find(nodes, digits), digits);
  assert.ok(!find(nodes, "minutes"));
  assert.ok(find(nodes, "Your music will stop in"));
  const moon = nodes.find((node) => node.role === "button" && node.name === "Sleep timer");
  assert.equal(`Sleep timer, ${moon.description}`, name);
});
