// The picture of what plays, wherever the phone has a place for it: the scene itself does not know
// it.
import { below } from "../server/address.js";
import { read } from "../server/requests.js";

export class Artwork {
  #state;
  #element;
  #covers = new Set(); // files that have a picture

  constructor(state, element) {
    this.#state = state;
    this.#element = element;
    for (const name of ["player", "snapshot"]) state.on(name, () => this.#show());
    this.#learn();
  }

  // Without the list there are no pictures.
  async #learn() {
    try {
      const tracks = await read("music");
      this.#covers = new Set(tracks.filter(({ cover }) => cover).map(({ id }) => id));
      this.#show();
    } catch {
      this.#covers.clear();
    }
  }

  #show() {
    const file = this.#state.player?.file;
    const known = this.#covers.has(file);
    const source = known ? `url("${below(`cover/${encodeURIComponent(file)}`)}")` : "none";
    this.#element.classList.toggle("has-cover", known);
    this.#element.style.setProperty("--cover", source);
  }
}
