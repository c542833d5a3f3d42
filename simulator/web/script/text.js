// A script's lines, with a mark at the one that is next. Pressing one goes to just before it.
import { h, reducedMotion } from "../ui/dom.js";
import { say } from "../ui/language.js";

const isSpoken = (line) => line.trim() !== "" && !line.trim().startsWith("#");

export class ScriptText {
  #lines = [];
  element = h("ol", {
    class: "script-text",
    id: "script-text",
    tabindex: 0,
    "aria-label": say("The script's lines"),
  });

  // `chosen` is called with the number of the line that was pressed.
  constructor(chosen) {
    this.element.addEventListener("click", ({ target }) => {
      const row = target.closest("li:not(.comment)");
      const isMarked = String(getSelection()) !== ""; // to be copied
      if (row && !isMarked) chosen([...this.element.children].indexOf(row) + 1);
    });
  }

  fill(text) {
    this.#lines = text === "" ? [] : text.replace(/\n$/, "").split("\n");
    this.element.replaceChildren(
      ...this.#lines.map((line) =>
        h(
          "li",
          isSpoken(line)
            ? { title: say("Goes to just before this line") }
            : { class: "comment" },
          h("code", { text: line === "" ? "\u00a0" : line }),
        ),
      ),
    );
  }

  // The last that does something before that one; null without any.
  lineBefore(line) {
    for (let before = line - 1; before > 0; --before)
      if (isSpoken(this.#lines[before - 1] ?? "")) return before;
    return null;
  }

  mark(next, state, failed) {
    [...this.element.children].forEach((row, index) => {
      const line = index + 1;
      const over = state === "finished" || line < next;
      row.classList.toggle("played", over && line !== failed);
      row.classList.toggle("next", !over && line === next && state !== "failed");
      row.classList.toggle("failed", line === failed);
      if (line === next)
        row.scrollIntoView({ block: "nearest", behavior: reducedMotion() ? "auto" : "smooth" });
    });
  }
}
