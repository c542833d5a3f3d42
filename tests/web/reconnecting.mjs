// The server goes and comes back: the page says so and goes on by itself.
import { phoneTest } from "./harness.mjs";

phoneTest("the server is stopped and started again", {}, async (served, page) => {
  const { port } = served;
  await served.stop();
  await page.locator('body[data-server="gone"]').waitFor();
  await page.locator("#veil", { hasText: "not there" }).waitFor();
  await served.start("--port", port);
  await page.locator('body[data-server="open"]').waitFor();
  await page.locator("#veil").waitFor({ state: "hidden" });
});
