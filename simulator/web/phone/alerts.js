// Alerts are read out when they appear.
import { announce } from "../ui/toast.js";
import { alertKind } from "./accessibility.js";

export class Alerts {
  #screen;
  #known = new Set(); // IDs of alerts that were announced

  constructor(screen) {
    this.#screen = screen;
    screen.addEventListener("change", () => this.#look());
  }

  #look() {
    const shown = [...this.#screen.nodes].filter(([, each]) => each.node.kind === alertKind);
    for (const [id, each] of shown) {
      if (this.#known.has(id)) continue;
      const words = [...each.element.querySelectorAll("text")].map((text) => text.textContent);
      if (words.length === 0) continue; // its texts come with the next change
      each.element.setAttribute("aria-label", words[0]);
      announce(words.join(". "));
    }
    this.#known = new Set(
      shown.filter(([, each]) => each.element.hasAttribute("aria-label")).map(([id]) => id),
    );
  }
}
