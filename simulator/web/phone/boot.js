// A home screen that begins is seen to begin: dark with a turning ring, for a moment, while it is
// there already and can be touched.
import { h } from "../ui/dom.js";

export class Boot {
  #element = h("div", { class: "boot", "aria-hidden": "true" }, h("div", { class: "boot-ring" }));
  #isFirst = true; // the page has just been opened: nothing has begun

  constructor(state, glass) {
    glass.append(this.#element);
    state.on("snapshot", (event) => this.#see(event.whole && state.phone.host === "running"));
  }

  // Of an earlier moment, too, the screen is new: but there nothing begins.
  #see(isNewHost) {
    const isSeen = isNewHost && !this.#isFirst && !document.body.classList.contains("going");
    this.#isFirst = false;
    this.#element.classList.remove("seen");
    if (!isSeen) return;
    void this.#element.offsetWidth; // the animation begins anew
    this.#element.classList.add("seen");
  }
}
