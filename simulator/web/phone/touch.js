// A finger on the glass: the pointer's way, as the phone's commands. One finger only.
import { perform } from "../server/commands.js";
import { Edges } from "./edges.js";

const rowHeight = 34; // pixels of a wheel for one row of a picker

const at = ({ x, y }) => `${x.toFixed(1)} ${y.toFixed(1)}`;

export class Touch {
  #state;
  #handset;
  #edges;
  #finger = null; // the pointer's id
  #place = null; // where it was last told to be
  #turned = 0; // pixels of the wheel that are less than a row

  constructor(state, handset, device) {
    this.#state = state;
    this.#handset = handset;
    this.#edges = new Edges(device);
    const { glass } = handset;
    glass.addEventListener("pointerdown", (event) => this.#down(event));
    glass.addEventListener("pointermove", (event) => this.#move(event));
    glass.addEventListener("pointerup", (event) => this.#up(event));
    glass.addEventListener("pointercancel", (event) => this.#cancel(event));
    glass.addEventListener("wheel", (event) => this.#wheel(event), { passive: false });
    glass.addEventListener("contextmenu", (event) => event.preventDefault());
  }

  #point(event) {
    return this.#handset.pointAt(event.clientX, event.clientY);
  }

  #down(event) {
    if (this.#finger !== null || event.button !== 0 || event.target.closest(".veil, .start-veil"))
      return;
    // A tap on the dark glass wakes the phone, and is none of the host's.
    if (!this.#state.phone.screenOn) return perform("screen on");
    this.#finger = event.pointerId;
    this.#handset.glass.setPointerCapture(event.pointerId);
    this.#place = this.#point(event);
    if (this.#edges.began(this.#place, this.#handset.size)) return;
    perform(`touch began ${at(this.#place)}`);
  }

  #move(event) {
    if (event.pointerId !== this.#finger || this.#edges.swiping) return;
    this.#go(this.#point(event));
  }

  // At once: the browser tells of movements once a frame, and what waits to be sent is overtaken.
  #go(place) {
    if (at(place) === at(this.#place)) return;
    this.#place = place;
    perform(`touch moved ${at(place)}`);
  }

  #up(event) {
    if (event.pointerId !== this.#finger) return;
    this.#finger = null;
    if (this.#edges.swiping) return this.#edges.ended(this.#point(event));
    this.#go(this.#point(event));
    perform(`touch ended ${at(this.#point(event))}`);
  }

  #cancel(event) {
    if (event.pointerId !== this.#finger) return;
    this.#finger = null;
    if (this.#edges.swiping) return this.#edges.cancelled();
    perform("touch cancelled");
  }

  #wheel(event) {
    event.preventDefault();
    const pixels =
      event.deltaMode === WheelEvent.DOM_DELTA_LINE ? event.deltaY * rowHeight : event.deltaY;
    this.#turned += pixels;
    const rows = Math.trunc(this.#turned / rowHeight);
    if (rows === 0) return;
    this.#turned -= rows * rowHeight;
    perform(`scroll ${at(this.#point(event))} ${rows}`);
  }
}
