// The server goes and comes back: the page says so and goes on by itself, unless it is not let in.
import { phoneTest } from "./harness.mjs";

const isOpen = (page) => page.locator('body[data-server="open"]').waitFor();

async function isRefused(page) {
  await page.locator('body[data-server="refused"]').waitFor();
  await page.locator("#veil", { hasText: "another secret" }).waitFor();
  await page.locator("#veil", { hasText: "Open the address that the simulator printed" }).waitFor();
}

phoneTest(
  "the server is stopped and started again with the same secret",
  { serve: ["--paused", "--token", "the.same_as~before-1"] },
  async (served, page) => {
    const { port } = served;
    await served.post("/api/time", { paused: false });
    await page.locator("#panel-time:not(.stands)").waitFor();
    await served.stop();
    await page.locator('body[data-server="gone"]').waitFor();
    await page.locator("#veil", { hasText: "not there" }).waitFor();
    await page.locator("#panel-time.stands[inert]").waitFor(); // nothing goes on without it
    await served.start("--port", port);
    await isOpen(page);
    await page.locator("#veil").waitFor({ state: "hidden" });
    await page.locator("#panel-time:not([inert])").waitFor();
  },
);

phoneTest("the server is started again with another secret", {}, async (served, page) => {
  const { port } = served;
  page.expected.add(401);
  await served.stop();
  await served.start("--port", port);
  await isRefused(page);
  await page.goto(served.entrance);
  await isOpen(page);
  await page.locator("#veil").waitFor({ state: "hidden" });
});

phoneTest("a page that was refused goes on with the right server", {}, async (served, page) => {
  const { port, token } = served;
  page.expected.add(401);
  await served.stop();
  await served.start("--port", port);
  await isRefused(page);
  await served.stop();
  await page.locator('body[data-server="gone"]').waitFor();
  await served.start("--port", port, "--token", token);
  await isOpen(page);
  await page.locator("#veil").waitFor({ state: "hidden" });
});
