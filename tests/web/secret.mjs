// Whoever has the secret is let in, and nobody learns it from the page.
import assert from "node:assert/strict";
import { once } from "node:events";
import { readdirSync, readFileSync } from "node:fs";
import { createServer } from "node:http";
import { phoneTest } from "./harness.mjs";

const isOpen = (page) => page.locator('body[data-server="open"]').waitFor();

phoneTest("the page keeps the secret from scripts and from eyes", {}, async (served, page) => {
  assert.equal(page.url(), served.address);
  assert.deepEqual(await page.evaluate(() => [location.search, document.cookie]), ["", ""]);
  const [{ name, value, httpOnly, sameSite, path }, ...others] = await page.context().cookies();
  assert.deepEqual(others, []);
  assert.deepEqual([name, value], ["dozewell", served.token]);
  assert.deepEqual([httpOnly, sameSite], [true, "Strict"]);
  assert.equal(path, new URL(served.address).pathname);
});

phoneTest("a reload needs no secret in the address", {}, async (served, page) => {
  const response = await page.reload();
  assert.equal(response.status(), 200);
  assert.equal(response.url(), served.address);
  await isOpen(page);
});

phoneTest("who comes without the secret is told what to do", {}, async (served, page) => {
  const stranger = await page.context().browser().newContext();
  const other = await stranger.newPage();
  const response = await other.goto(served.address);
  assert.equal(response.status(), 401);
  await other.getByText("open the address that dozewell-simulator printed").waitFor();
  await stranger.close();
});

// What a server at another port of this machine is told: the paths and the cookies that came along.
async function toldElsewhere(context, paths) {
  const told = [];
  const server = createServer((request, response) => {
    told.push([request.url, request.headers.cookie]);
    response.end("Nothing.");
  });
  server.listen(0, "127.0.0.1");
  await once(server, "listening");
  const page = await context.newPage();
  try {
    for (const path of paths) await page.goto(`http://127.0.0.1:${server.address().port}${path}`);
  } finally {
    await page.close();
    server.close();
    server.closeAllConnections();
  }
  return told.filter(([path]) => paths.includes(path));
}

phoneTest("a page of another port is not told the secret", {}, async (served, page) => {
  // Cookies know no ports: this one comes along, as the secret would without a place of its own.
  const url = new URL("/", served.address).href;
  await page.context().addCookies([{ name: "any", value: "other", url }]);
  assert.deepEqual(await toldElsewhere(page.context(), ["/", "/x/"]), [
    ["/", "any=other"],
    ["/x/", "any=other"],
  ]);
});

const signature = Buffer.from("\x89PNG\r\n\x1a\n", "latin1");

phoneTest("a picture is had from the page, not from the folder", {}, async (served, page) => {
  await page.click("#tab-script");
  await page.locator("#script-pictures").waitFor({ state: "hidden" });
  await page.fill("#command-line", "snapshot screen.png");
  await page.keyboard.press("Enter");
  const link = page.locator("#script-pictures a", { hasText: "screen.png" });
  const [download] = await Promise.all([page.waitForEvent("download"), link.click()]);
  assert.equal(download.suggestedFilename(), "screen.png");
  const content = readFileSync(await download.path());
  assert.deepEqual(content.subarray(0, signature.length), signature);
  assert.ok(!readdirSync(served.folder).includes("screen.png"));
});

phoneTest("the newest picture stands first, and each only once", {}, async (served, page) => {
  await page.click("#tab-script");
  await served.run("snapshot first.png");
  const links = page.locator("#script-pictures a");
  const before = await links.getAttribute("href");
  await served.run("snapshot second.png", "snapshot first.png");
  await page.locator(`#script-pictures a[download="first.png"]:not([href="${before}"])`).waitFor();
  assert.deepEqual(await links.allTextContents(), ["second.png", "first.png"]);
});
