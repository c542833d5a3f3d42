// The journal along the phone's time: a mark for each entry, in a lane for its kind.
import { h, svg } from "../ui/dom.js";
import { duration } from "../ui/format.js";
import { paced } from "../ui/paced.js";
import { explain, kinds } from "./meaning.js";

const lanes = Object.keys(kinds);
const width = 1000; // of the drawing's own units
const laneHeight = 9;
const height = lanes.length * laneHeight + 6;
const margin = 12;
const atMost = 800; // marks
const drawnEvery = 250; // milliseconds

export class Timeline {
  #state;
  #chosen;
  #marks = svg("g", {});
  #now = svg("line", { class: "now", y1: 0, y2: height });
  #from = h("span", {});
  #to = h("span", {});
  #drawn = 0;
  #marked = null;
  #queue = paced(drawnEvery, () => this.#draw());

  constructor(state, chosen) {
    this.#state = state;
    this.#chosen = chosen;
    const drawing = svg(
      "svg",
      { viewBox: `0 0 ${width} ${height}`, preserveAspectRatio: "none", "aria-hidden": "true" },
      ...lanes.map((_, lane) =>
        svg("line", { class: "lane", x1: 0, x2: width, y1: this.#y(lane), y2: this.#y(lane) }),
      ),
      this.#now,
      this.#marks,
    );
    this.element = h(
      "div",
      { class: "timeline", id: "timeline" },
      drawing,
      h("div", { class: "timeline-ends" }, this.#from, this.#to),
    );
    drawing.addEventListener("click", (event) => this.#choose(event, drawing));
    state.on("journal", () => this.#queue());
    setInterval(() => this.#moveNow(), 500);
  }

  #y(lane) {
    return 3 + (lane + 0.5) * laneHeight;
  }

  get #entries() {
    return this.#state.journal.slice(-atMost);
  }

  get #span() {
    const entries = this.#entries;
    const first = entries[0]?.time ?? 0;
    return { first, last: Math.max(entries.at(-1)?.time ?? 0, this.#state.uptime(), first + 1) };
  }

  #x(time, { first, last }) {
    return margin + ((time - first) / (last - first)) * (width - 2 * margin);
  }

  #draw() {
    const span = this.#span;
    this.#drawn = span.last;
    this.#marks.replaceChildren(
      ...this.#entries.map((entry) => {
        const { kind } = explain(entry.text);
        const x = this.#x(entry.time, span);
        const y = this.#y(lanes.indexOf(kind));
        const chosen = entry.n === this.#marked ? " chosen" : "";
        return svg("line", {
          class: `mark ${kind}${chosen}`,
          x1: x,
          x2: x,
          y1: y - 3,
          y2: y + 3,
          "data-n": entry.n,
        });
      }),
    );
    this.#from.textContent = duration(span.first);
    this.#to.textContent = duration(span.last);
    this.#moveNow();
  }

  #moveNow() {
    const span = this.#span;
    // The scale is drawn again only when time has left it behind.
    if (span.last > this.#drawn + (span.last - span.first) * 0.02) return this.#queue();
    const x = this.#x(Math.min(this.#state.uptime(), this.#drawn), {
      ...span,
      last: this.#drawn || span.last,
    });
    this.#now.setAttribute("x1", x);
    this.#now.setAttribute("x2", x);
  }

  #choose(event, drawing) {
    const box = drawing.getBoundingClientRect();
    const x = ((event.clientX - box.left) / box.width) * width;
    const y = ((event.clientY - box.top) / box.height) * height;
    let nearest = null;
    let least = Infinity;
    for (const mark of this.#marks.children) {
      const away = Math.hypot(mark.x1.baseVal.value - x, (mark.y1.baseVal.value + 3 - y) * 3);
      if (away < least) [nearest, least] = [mark, away];
    }
    if (nearest) this.#chosen(Number(nearest.dataset.n));
  }

  mark(n) {
    this.#marked = n;
    this.#queue();
  }
}
