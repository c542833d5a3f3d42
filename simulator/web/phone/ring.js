// A frame over the phone's screen around one of its elements, however the phone is turned.
import { h } from "../ui/dom.js";

export class Ring {
  #handset;
  #margin;
  element;

  // `margin`: points between the element and the frame.
  constructor(handset, name, margin) {
    this.#handset = handset;
    this.#margin = margin;
    this.element = h("div", { class: name, hidden: true, "aria-hidden": "true" });
    handset.glass.append(this.element);
  }

  // null: around nothing.
  place(target) {
    this.element.hidden = !target;
    if (!target) return;
    const { glass } = this.#handset;
    const sideways = Math.abs(this.#handset.turn) === 90;
    const whole = glass.getBoundingClientRect();
    const ratio = whole.width / (sideways ? glass.offsetHeight : glass.offsetWidth) || 1;
    const box = target.getBoundingClientRect();
    const dx = (box.left + box.width / 2 - whole.left - whole.width / 2) / ratio;
    const dy = (box.top + box.height / 2 - whole.top - whole.height / 2) / ratio;
    const { style } = this.element;
    style.width = `${box.width / ratio + 2 * this.#margin}px`;
    style.height = `${box.height / ratio + 2 * this.#margin}px`;
    const upright = `rotate(${-this.#handset.turn}deg)`;
    style.transform = `${upright} translate(${dx}px, ${dy}px) translate(-50%, -50%)`;
  }
}
