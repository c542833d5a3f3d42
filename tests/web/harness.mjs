// A served phone of one's own for each test, and pages that look at it. Nothing here waits for a
// length of time: only for something to be so.
import { spawn } from "node:child_process";
import { once } from "node:events";
import { mkdtempSync, rmSync, writeFileSync } from "node:fs";
import { createRequire } from "node:module";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, test } from "node:test";

const {
  DOZEWELL_SIMULATOR: simulator,
  DOZEWELL_NODE_MODULES: modules,
  DOZEWELL_CHROMIUM: chromiumPath,
} = process.env;
const { chromium } = createRequire(join(modules, "needed-by-tests.js"))("playwright-core");

export { simulator };
// Milliseconds. Long, because other tests run beside and sanitizers are slow: nothing that is right
// waits for them to pass.
const startedWithin = 60_000;
export const soWithin = 30_000;

// A whole line: a secret that is cut off where the output was is none.
const printed = /(http:\/\/127\.0\.0\.1:\d+\/[0-9a-f]{16}\/\?token=[\w.~-]+).*\n/;

let browser = null;

async function launched() {
  // As root, as in containers, Chromium asks for this.
  const sandbox = process.getuid() === 0 ? ["--no-sandbox"] : [];
  // Without a graphics card one would be imitated, by the processors that the tests need.
  const args = [...sandbox, "--disable-gpu", "--disable-software-rasterizer"];
  browser ??= await chromium.launch({ executablePath: chromiumPath, args });
  return browser;
}

export async function closeBrowser() {
  await browser?.close();
  browser = null;
}

after(closeBrowser);

export class Served {
  #process = null;
  #ended = null;
  folder = mkdtempSync(join(tmpdir(), "dozewell-web-"));
  address = ""; // where the page and all that it asks for lie
  entrance = ""; // the same with the secret, as it was printed

  constructor(options) {
    this.options = options;
  }

  // Resolves when it has said where it is. It works in the folder: what it leaves there is seen.
  start(...more) {
    return new Promise((resolve, reject) => {
      this.#process = spawn(simulator, ["serve", "--port", "0", ...this.options, ...more], {
        cwd: this.folder,
        stdio: ["ignore", "pipe", "inherit"],
      });
      this.#ended = once(this.#process, "exit");
      const late = setTimeout(
        () => reject(new Error("the server did not say where it is")),
        startedWithin,
      );
      let said = "";
      this.#process.stdout.on("data", (bytes) => {
        said += bytes;
        const found = printed.exec(said);
        if (!found) return;
        clearTimeout(late);
        this.entrance = found[1];
        this.address = new URL(".", this.entrance).href;
        resolve(this);
      });
      this.#process.once("exit", (code) =>
        reject(new Error(`the server ended with ${code}: ${said}`)),
      );
    });
  }

  get port() {
    return new URL(this.address).port;
  }

  get token() {
    return new URL(this.entrance).searchParams.get("token");
  }

  // The entrance with more parameters.
  entranceWith(parameters) {
    const url = new URL(this.entrance);
    for (const [name, value] of new URLSearchParams(parameters)) url.searchParams.set(name, value);
    return url.href;
  }

  async stop() {
    this.#process.kill("SIGTERM");
    await this.#ended;
  }

  async close() {
    await this.stop();
    rmSync(this.folder, { recursive: true, force: true });
  }

  async #ask(path, { headers, ...options } = {}) {
    const response = await fetch(new URL(path.replace(/^\//, ""), this.address), {
      ...options,
      headers: { ...headers, Authorization: `Bearer ${this.token}` },
    });
    const text = await response.text();
    if (!response.ok) throw new Error(`${path}: ${response.status} ${text}`);
    return text;
  }

  read(path) {
    return this.#ask(path);
  }

  async post(path, body) {
    const options = {
      method: "POST",
      headers: { "Content-Type": "application/json" },
      body: JSON.stringify(body),
    };
    return JSON.parse(await this.#ask(path, options));
  }

  run(...lines) {
    return this.post("/api/command", { lines });
  }

  async journal() {
    const answer = JSON.parse(await this.read("/api/journal"));
    return (Array.isArray(answer) ? answer : answer.entries).map((entry) => entry.text);
  }

  write(name, content) {
    const file = join(this.folder, name);
    writeFileSync(file, content);
    return file;
  }
}

// A page on the phone, past the question for sound unless it is what is tested. `path` may hold
// parameters: "?script=/api/recording.phone".
export async function openPage(served, { path = "", silent = true, ...context } = {}) {
  const browsing = await (
    await launched()
  ).newContext({ viewport: { width: 1280, height: 860 }, ...context });
  browsing.setDefaultTimeout(soWithin);
  const page = await browsing.newPage();
  page.problems = [];
  page.expected = new Set(); // statuses that are no problem in this test
  page.on("pageerror", (error) => page.problems.push(error.message));
  // What could not be loaded is noted by its answer: while the server restarts nothing can be.
  page.on("console", (message) => {
    if (message.type() === "error" && !message.text().startsWith("Failed to load resource"))
      page.problems.push(message.text());
  });
  // 503 says that the phone restarts; the page asks again. 401: it has not shown the secret.
  page.on("response", (response) => {
    const status = response.status();
    const isProblem = status === 401 || status === 404 || (status >= 500 && status !== 503);
    if (isProblem && !page.expected.has(status)) page.problems.push(`${status} ${response.url()}`);
  });
  await page.goto(served.entranceWith(path));
  await page.locator('body[data-server="open"]').waitFor();
  if (silent) await page.click("#start-silent");
  return page;
}

// test with a phone that stands still until it is told otherwise, and with a page on it.
export function phoneTest(name, options, body) {
  test(name, async () => {
    const served = new Served(options.serve ?? ["--paused"]);
    await served.start();
    try {
      const page = options.page === false ? null : await openPage(served, options.page);
      await body(served, page);
      if (page && page.problems.length > 0)
        throw new Error(`the page had problems: ${page.problems.join("; ")}`);
      if (page) await page.context().close();
    } finally {
      await served.close();
    }
  });
}

// For tests that need their phone in a state of its own.
phoneTest.withoutPhone = (name, body) => test(name, body);

// The element of the phone's screen with that name for screen readers.
export const onScreen = (page, role, name) =>
  page.locator("#glass").getByRole(role, { name, exact: true });

export const journalOf = (page) => page.locator("#entries");

// Lets time pass at once, as the page's own control does.
export const pass = (served, seconds) => served.post("/api/time", { advance: seconds });

// Until the phone's journal has that line.
// `text` may be a part of the line.
// The page's policy keeps out what playwright would wait with.
export const journalHas = (page, text) =>
  page.evaluate(async (wanted) => {
    const { state } = await import(new URL("main.js", document.baseURI)); // the page's own
    const comes = () =>
      new Promise((come) => {
        state.addEventListener("journal", come, { once: true });
      });
    while (!state.journal.some((entry) => entry.text.includes(wanted))) await comes();
  }, text);

// Does something on the page, and waits until the server has answered a command that has that text.
export async function andCommand(page, text, act) {
  const answered = page.waitForResponse(
    (response) =>
      response.url().endsWith("/api/command") && response.request().postData().includes(text),
  );
  await act();
  await answered;
}

// What the server answers when it is told of time by what is done on the page.
export const timeAnswer = (page, act) =>
  Promise.all([
    page.waitForResponse((response) => response.url().endsWith("/api/time")),
    act(),
  ]).then(([response]) => response.json());

// Does something that has the host's process restarted, and waits until the page knows the new
// one.
export async function andRestart(page, act) {
  const watched = await page.evaluateHandle(async () => {
    const { state } = await import(new URL("main.js", document.baseURI)); // the page's own
    return {
      told: new Promise((resolve) => {
        state.on("snapshot", resolve);
      }),
    };
  });
  await act();
  await watched.evaluate(({ told }) => told.then(() => true));
  await page.locator('body[data-server="open"]').waitFor();
}

// A click on what is on the phone's screen, until the finger is up again.
export const press = (page, locator) => andCommand(page, "touch ended", () => locator.click());

// From the home screen to the panel of the timer. Animations are let pass.
export async function openPanel(served, page) {
  await andCommand(page, "control-center open", () => page.click("#device-controls"));
  await pass(served, 1);
  await press(page, onScreen(page, "button", "Sleep timer"));
  await pass(served, 1);
  await onScreen(page, "button", "Confirm").waitFor();
}
