// Keeps the audio element where the host's player is. The host decides; this only follows.

import { localMusic } from "../player/local.js";

const tolerance = 0.35; // seconds that the element may be off before it is moved
const checkEvery = 1000; // milliseconds

// Why there is silence although the music plays, as a word; null when it is heard.
export function silence(state, owner, allowed) {
  if (!owner) return "elsewhere";
  if (!allowed) return "locked";
  if (state.clock.paused) return "paused";
  if (state.clock.speed !== 1) return "fast";
  return null;
}

export class SoundFollower extends EventTarget {
  #state;
  #page;
  #output;

  constructor(state, page, output) {
    super();
    this.#state = state;
    this.#page = page;
    this.#output = output;
    for (const name of ["player", "clock", "audio", "phone", "snapshot"])
      state.on(name, () => this.follow());
    setInterval(() => this.follow(), checkEvery);
  }

  get owner() {
    return this.#state.audio.page === this.#page;
  }

  get silence() {
    return silence(this.#state, this.owner, this.#output.allowed);
  }

  follow() {
    const { player } = this.#state;
    const file = player?.file ?? localMusic.idOf(player);
    this.#load(file);
    if (player) this.#output.setLevel(player.volume);
    const heard = player?.playing && file !== null && this.silence === null;
    if (heard) this.#play();
    else this.#output.element.pause();
    this.dispatchEvent(new Event("change"));
  }

  #load(file) {
    const { element } = this.#output;
    if (element.dataset.file === (file ?? "")) return;
    element.dataset.file = file ?? "";
    if (file === null || !this.owner) {
      element.removeAttribute("src");
      element.dataset.file = "";
    } else element.src = localMusic.urlOf(file) ?? `music/${encodeURIComponent(file)}`;
  }

  #play() {
    const { element } = this.#output;
    const due = this.#state.position();
    if (Math.abs(element.currentTime - due) > tolerance) element.currentTime = due;
    // The browser may refuse, or the file may be gone before it has begun: the next change tries
    // again.
    if (element.paused && !element.ended)
      element.play().catch(() => this.dispatchEvent(new Event("change")));
  }
}
