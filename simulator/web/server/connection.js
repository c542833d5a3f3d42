// The stream of changes, kept open: whatever happens to the server, the page goes on trying.
import { parts } from "./state.js";

const goneAfter = 2500; // milliseconds without an answer until the server counts as gone
const retryEvery = 1000; // milliseconds
const retrySoon = 150; // milliseconds: a server that restarts keeps its port open

export class Connection extends EventTarget {
  #state;
  #url;
  #gone = null;
  status = "connecting"; // connecting, open, restarting, gone

  constructor(state, page) {
    super();
    this.#state = state;
    this.#url = `/api/events?page=${encodeURIComponent(page)}`;
    this.#connect();
  }

  #become(status) {
    if (this.status === status) return;
    this.status = status;
    this.dispatchEvent(new Event("status"));
  }

  #connect() {
    const source = new EventSource(this.#url);
    source.addEventListener("snapshot", (event) => {
      clearTimeout(this.#gone);
      this.#gone = null;
      this.#state.takeSnapshot(JSON.parse(event.data));
      this.#become("open");
    });
    for (const name of parts)
      source.addEventListener(name, (event) => this.#state.take(name, JSON.parse(event.data)));
    source.addEventListener("error", () => this.#lost(source));
  }

  #lost(source) {
    if (this.status === "open") this.#become("restarting");
    this.#gone ??= setTimeout(() => this.#become("gone"), goneAfter);
    source.close(); // the browser would try again by itself, but only after seconds
    setTimeout(() => this.#connect(), this.status === "gone" ? retryEvery : retrySoon);
  }

  // The host's process is about to begin anew.
  expectRestart() {
    if (this.status === "open") this.#become("restarting");
  }
}
