// The host crashes, hangs, and is safe: the page says so and offers what can be done.
import { phoneTest } from "./harness.mjs";

phoneTest("a crash is told, and closed", {}, async (served, page) => {
  await served.run("send NSObject.new performSelector: selector nope").catch(() => null);
  const card = page.locator("#life");
  await card.getByText("The home screen crashed").waitFor();
  await card.getByText("unrecognized selector").first().waitFor();
  await card.getByRole("button", { name: "Close" }).click();
  await card.waitFor({ state: "hidden" });
});

phoneTest("after the second crash there is safe mode, and a way out", {}, async (served, page) => {
  for (let times = 0; times < 2; ++times)
    await served.run("send NSObject.new performSelector: selector nope").catch(() => null);
  await page.getByText("Safe mode: without extensions").waitFor();
  await page.getByRole("button", { name: "Try again" }).click();
  await page.getByText("Safe mode: without extensions").waitFor({ state: "hidden" });
});

phoneTest("a long command can be stopped", {}, async (served, page) => {
  const busy = served.run("repeat 1000000000 volume 0.5").catch(() => null);
  await page.getByRole("button", { name: "Stop it" }).click();
  await busy;
  await page.locator("#life").waitFor({ state: "hidden" });
});
