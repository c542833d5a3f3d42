// A script's lines, with a mark at the one that is next.
import { h, reducedMotion } from "../ui/dom.js";

export class ScriptText {
  element = h("ol", {
    class: "script-text",
    id: "script-text",
    tabindex: 0,
    "aria-label": "The script's lines",
  });

  fill(text) {
    const lines = text === "" ? [] : text.replace(/\n$/, "").split("\n");
    this.element.replaceChildren(
      ...lines.map((line) =>
        h(
          "li",
          { class: line.trim().startsWith("#") ? "comment" : "" },
          h("code", { text: line === "" ? "\u00a0" : line }),
        ),
      ),
    );
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
