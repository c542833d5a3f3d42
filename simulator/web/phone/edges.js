// The swipes that belong to the system: down from the upper right corner for Control Center, up
// from the lower edge for home. The host has no gestures of its own there.
import { perform } from "../server/commands.js";

const corner = { height: 60, part: 0.5 }; // points from the top; part of the width from the left
const lowerEdge = 26; // points
const far = 60; // points that make a swipe

export class Edges {
  #device;
  #from = null; // where it began
  #swipe = null; // "down", "up"

  constructor(device) {
    this.#device = device;
  }

  // Whether a touch there begins a swipe, and so is none of the host's.
  began(point, size) {
    this.#from = point;
    if (
      point.y < corner.height &&
      point.x > size.width * corner.part &&
      !this.#device.controlCenterIsOpen
    )
      this.#swipe = "down";
    else if (point.y > size.height - lowerEdge) this.#swipe = "up";
    else this.#swipe = null;
    return this.#swipe !== null;
  }

  get swiping() {
    return this.#swipe !== null;
  }

  ended(point) {
    const way = point.y - this.#from.y;
    const swipe = this.#swipe;
    this.#swipe = null;
    if (swipe === "down" && way > far) perform("control-center open");
    if (swipe === "up" && way < -far) this.#device.home();
  }

  cancelled() {
    this.#swipe = null;
  }
}
