// The stream of changes, kept open: whatever happens to the server, the page goes on trying.
import { isRefused } from "./requests.js";
import { parts } from "./state.js";

const goneAfter = 2500; // milliseconds without an answer until the server counts as gone
const retryEvery = 1000; // milliseconds
const retrySoon = 150; // milliseconds: at first, a connection may have been lost by chance

export class Connection extends EventTarget {
  #state;
  #url;
  #gone = null;
  status = "connecting"; // connecting, open, gone, refused

  constructor(state, page) {
    super();
    this.#state = state;
    this.#url = `api/events?page=${encodeURIComponent(page)}`;
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
      this.#isThere();
      this.#state.takeSnapshot(JSON.parse(event.data));
      this.#become("open");
    });
    for (const name of parts)
      source.addEventListener(name, (event) => this.#state.take(name, JSON.parse(event.data)));
    source.addEventListener("error", () => this.#lost(source));
  }

  #isThere() {
    clearTimeout(this.#gone);
    this.#gone = null;
  }

  // There is one thing at a time: a stream, the question why there is none, or the wait for the
  // next. A source that is closed tells nothing any more.
  async #lost(source) {
    // The browser has given up: what was answered is no stream. It does not say what it is.
    const isAnswered = source.readyState === EventSource.CLOSED;
    source.close(); // the browser would try again by itself, but only after seconds
    this.#state.standStill();
    if (this.status === "open") this.#become("connecting");
    this.#gone ??= setTimeout(() => this.#become("gone"), goneAfter);
    if (isAnswered && (await isRefused())) this.#refuse();
    const isSlow = this.status === "gone" || this.status === "refused";
    setTimeout(() => this.#connect(), isSlow ? retryEvery : retrySoon);
  }

  // A server with the right secret may come back.
  #refuse() {
    this.#isThere();
    this.#become("refused");
  }
}
