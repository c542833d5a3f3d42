// A calm veil over the phone while the server restarts, is gone, or does not let this page in.
import { h } from "./dom.js";

const words = {
  connecting: ["Waking the phone…", ""],
  restarting: ["Restarting…", "The home screen begins anew."],
  gone: [
    "The simulator is not there",
    "Start it again with ./run and open the address that it prints.",
  ],
  refused: [
    "This phone has another secret now",
    "Open the address that the simulator printed when it started.",
  ],
};

export class Veil {
  #connection;
  #title = h("p", { class: "veil-title" });
  #more = h("p", { class: "veil-more" });
  #element = h(
    "div",
    { class: "veil", id: "veil", role: "status" },
    h("div", { class: "veil-moon", "aria-hidden": "true" }),
    this.#title,
    this.#more,
  );

  constructor(connection, place) {
    this.#connection = connection;
    place.append(this.#element);
    connection.addEventListener("status", () => this.#show());
    this.#show();
  }

  #show() {
    const { status } = this.#connection;
    this.#element.hidden = status === "open";
    document.body.dataset.server = status;
    [this.#title.textContent, this.#more.textContent] = words[status] ?? ["", ""];
  }
}
