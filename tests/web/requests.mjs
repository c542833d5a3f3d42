// Nothing that the page does leaves this machine.
import assert from "node:assert/strict";
import { openPage, phoneTest } from "./harness.mjs";

phoneTest(
  "every request goes to the server that the page is from",
  { page: false },
  async (served) => {
    const page = await openPage(served);
    const asked = [];
    page.on("request", (request) => asked.push(request.url()));
    await page.reload();
    await page.locator('body[data-server="open"]').waitFor();
    for (const tab of ["settings", "setup", "script", "journal"]) await page.click(`#tab-${tab}`);
    assert.ok(asked.length > 20);
    assert.deepEqual(
      asked.filter((url) => !url.startsWith(served.address) && !url.startsWith("data:")),
      [],
    );
    const { headers } = await fetch(served.entrance);
    assert.match(headers.get("content-security-policy"), /default-src 'none'/);
  },
);
