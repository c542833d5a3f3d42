// A calm veil over the phone while its host restarts, or the server is gone or does not let this
// page in.
import { h } from "./dom.js";
import { say } from "./language.js";

// While something lies over the phone's screen nothing on it can be reached.
export function cover(glass) {
  const veils = [...glass.querySelectorAll(".veil, .start-veil")];
  glass.querySelector(".screen-content").inert = veils.some((veil) => !veil.hidden);
}

const words = {
  connecting: [say("Waking the phone…"), ""],
  restarting: [say("Restarting…"), say("The home screen begins anew.")],
  gone: [
    say("The simulator is not there"),
    say("Start it again with ./run and open the address that it prints."),
  ],
  refused: [
    say("This phone has another secret now"),
    say("Open the address that the simulator printed when it started."),
  ],
};

export class Veil {
  #state;
  #connection;
  #place;
  #title = h("p", { class: "veil-title" });
  #more = h("p", { class: "veil-more" });
  #element = h(
    "div",
    { class: "veil", id: "veil", role: "status" },
    h("div", { class: "veil-moon", "aria-hidden": "true" }),
    this.#title,
    this.#more,
  );

  constructor(state, connection, place) {
    this.#state = state;
    this.#connection = connection;
    this.#place = place;
    place.append(this.#element);
    connection.addEventListener("status", () => this.#show());
    for (const name of ["life", "snapshot"]) state.on(name, () => this.#show());
    this.#show();
  }

  #show() {
    const isStarting = this.#state.life.state === "starting";
    const status =
      this.#connection.status === "open" && isStarting ? "restarting" : this.#connection.status;
    this.#element.hidden = status === "open";
    cover(this.#place);
    document.body.dataset.server = status;
    [this.#title.textContent, this.#more.textContent] = words[status] ?? ["", ""];
  }
}
