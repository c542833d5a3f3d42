// The phone's screen by keyboard: Enter and the space bar press what has the focus, arrow keys turn
// it, and a ring above everything shows where the focus is.
import { perform } from "../server/commands.js";
import { presses, turns } from "./accessibility.js";
import { Focus } from "./focus.js";
import { Levels } from "./levels.js";
import { Ring } from "./ring.js";
import { Wheel } from "./wheel.js";

export class Keyboard {
  #handset;
  #levels;
  #wheel = new Wheel();
  #ring;

  constructor(handset, screen, device) {
    this.#handset = handset;
    this.#levels = new Levels(handset, device, (element) => this.#press(element));
    new Focus(handset.glass, screen);
    this.#ring = new Ring(handset, "focus-ring", 4);
    handset.glass.addEventListener("keydown", (event) => this.#key(event));
    handset.glass.addEventListener("click", (event) => this.#click(event));
    handset.glass.addEventListener("focusin", () => this.#place());
    handset.glass.addEventListener("focusout", () => this.#place());
    screen.addEventListener("change", () => this.#place());
  }

  get #focused() {
    const element = document.activeElement?.closest(".node[tabindex]");
    return element && this.#handset.glass.contains(element) ? element : null;
  }

  #centre(element) {
    const box = element.getBoundingClientRect();
    const { x, y } = this.#handset.pointAt(box.left + box.width / 2, box.top + box.height / 2);
    return `${x.toFixed(1)} ${y.toFixed(1)}`;
  }

  #key(event) {
    if (event.key === "Escape") return this.#levels.back();
    const element = this.#focused;
    if (!element || event.ctrlKey || event.metaKey || event.altKey) return;
    const { role } = element.dataset;
    if (turns(role)) return this.#turn(element, event);
    if (!presses(role) || (event.key !== "Enter" && event.key !== " ")) return;
    event.preventDefault();
    if (!event.repeat) this.#press(element);
  }

  #turn(element, event) {
    const rows = this.#wheel.rows(element, event);
    if (rows === undefined) return;
    event.preventDefault();
    // A slider is turned by twentieths, and down is less.
    const way = element.dataset.role === "slider" ? -1 : 1;
    if (rows !== 0) perform(`scroll ${this.#centre(element)} ${way * rows}`);
  }

  // Screen readers click without a pointer.
  #click(event) {
    const element = event.target.closest(".node[tabindex]");
    if (element && event.detail === 0 && presses(element.dataset.role)) this.#press(element);
  }

  #press(element) {
    const point = this.#centre(element);
    perform(`touch began ${point}`);
    perform(`touch ended ${point}`);
  }

  #place() {
    const element = this.#focused;
    this.#ring.place(element?.matches(":focus-visible") ? element : null);
  }
}
