// The letters of the page take the room that the phone has measured for them: kerned, and joined in
// Arabic.
import assert from "node:assert/strict";
import { andRestart, phoneTest } from "./harness.mjs";

// The whole screen, as a page gets it when it comes.
async function sceneOf(served) {
  const events = await fetch(new URL("api/events", served.address), {
    headers: { Authorization: `Bearer ${served.token}` },
  });
  let received = "";
  for await (const text of events.body.pipeThrough(new TextDecoderStream())) {
    received += text;
    const snapshot = /event: snapshot\ndata: (.*)\n\n/.exec(received);
    if (snapshot) return JSON.parse(snapshot[1]).scene;
  }
  throw new Error("the server ended the events");
}

// Of each line: what was measured and what the browser takes.
const widths = (page, scene) =>
  page.evaluate(
    async (nodes) => {
      const { drawContent } = await import(new URL("phone/content.js", document.baseURI));
      const drawings = nodes.map((node) => drawContent(node));
      document.querySelector("#glass").append(...drawings);
      await document.fonts.ready; // those that were drawn with just now
      const lines = nodes.flatMap(({ content }, index) => {
        const drawn = drawings[index].querySelectorAll("text");
        return content.lines.map(({ text, width }, line) => ({
          text,
          measured: width,
          taken: drawn[line].getComputedTextLength(),
        }));
      });
      for (const drawing of drawings) drawing.remove();
      return lines;
    },
    Object.values(scene.nodes).filter(({ content }) => content?.type === "text"),
  );

for (const locale of ["en_US", "ar_SA", "ru_RU", "hi_IN"])
  phoneTest(`text in ${locale} is as wide as measured`, {}, async (served, page) => {
    await andRestart(page, () => served.post("/api/setup", { lines: [`locale ${locale}`] }));
    await served.run("unlock", "settings open", "advance 5s");
    await served.run('settings tap "Dozewell2"', "advance 5s");
    const lines = await widths(page, await sceneOf(served));
    assert.ok(lines.length > 20, `there are ${lines.length} lines`);
    // The browser does not kern with blanks, nor quotes with the letters of another script.
    const wrong = lines.filter(
      ({ measured, taken }) => Math.abs(taken - measured) > 0.05 + 0.0025 * measured,
    );
    assert.deepEqual(wrong, []);
  });
