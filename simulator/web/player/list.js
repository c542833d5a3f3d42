// The tracks of the folder. Pressing one plays the list from there on.
import { perform, quoted } from "../server/commands.js";
import { h } from "../ui/dom.js";
import { duration } from "../ui/format.js";
import { localMusic } from "./local.js";

const words = ({ title, artist, length }) =>
  `${quoted(title)} ${length}${artist ? ` by ${quoted(artist)}` : ""}`;

export class MusicList {
  #state;
  #place;
  #tracks = [];
  #rows = [];

  constructor(state, place) {
    this.#state = state;
    this.#place = place;
  }

  fill(tracks) {
    this.#tracks = tracks;
    this.#rows = tracks.map((track, index) => this.#row(track, index));
    this.#place.replaceChildren(...this.#rows);
    this.show();
  }

  hasCover(file) {
    return this.#tracks.some((track) => track.id === file && track.cover);
  }

  #row(track, index) {
    return h(
      "li",
      {},
      h(
        "button",
        { class: "track", type: "button", onclick: () => this.play(index) },
        h(
          "span",
          { class: "track-name" },
          h("span", { text: track.title }),
          track.artist ? h("small", { text: track.artist }) : null,
        ),
        h("span", { class: "track-length", text: duration(track.length) }),
      ),
    );
  }

  get isEmpty() {
    return this.#tracks.length === 0;
  }

  // The list from that track on, and then what stands before it.
  play(index) {
    const order = [...this.#tracks.slice(index), ...this.#tracks.slice(0, index)];
    perform(`playlist ${order.map(words).join(" ")}`);
  }

  show() {
    const { player } = this.#state;
    const file = player?.file ?? localMusic.idOf(player);
    this.#rows.forEach((row, index) => {
      const current = this.#tracks[index].id === file;
      row.classList.toggle("current", current);
      row.firstElementChild.toggleAttribute("aria-current", current);
    });
  }
}
