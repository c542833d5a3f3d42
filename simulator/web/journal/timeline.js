// The journal along the phone's time: marks in a lane for each kind. A wheel or the buttons zoom, a
// finger pans; pressing a mark goes to its entry.
import { h, svg } from "../ui/dom.js";
import { duration } from "../ui/format.js";
import { icon } from "../ui/icons.js";
import { say } from "../ui/language.js";
import { paced } from "../ui/paced.js";
import { explain, kinds } from "./meaning.js";

const lanes = Object.keys(kinds);
const width = 1000; // of the drawing's own units
const laneHeight = 9;
const height = lanes.length * laneHeight + 6;
const margin = 12;
const columns = 400; // of a lane: what falls into one is one mark
const drawnEvery = 250; // milliseconds
const closest = 1; // seconds that are seen at least
const click = 4; // pixels: a finger that moved less has not panned

export class Timeline {
  #state;
  #chosen;
  #marks = svg("g", {});
  #now = svg("line", { class: "now", y1: 0, y2: height });
  #drawing = svg(
    "svg",
    { viewBox: `0 0 ${width} ${height}`, preserveAspectRatio: "none", "aria-hidden": "true" },
    ...lanes.map((_, lane) =>
      svg("line", { class: "lane", x1: 0, x2: width, y1: this.#y(lane), y2: this.#y(lane) }),
    ),
    this.#now,
    this.#marks,
  );
  #from = h("span", {});
  #to = h("span", {});
  #view = null; // {first, last} in seconds, when somebody has zoomed; else all is seen
  #drawn = { first: 0, last: 1 };
  #marked = null;
  #pan = null; // {x, view, moved}
  #queue = paced(drawnEvery, () => this.#draw());

  constructor(state, chosen) {
    this.#state = state;
    this.#chosen = chosen;
    this.element = h(
      "div",
      { class: "timeline", id: "timeline" },
      this.#drawing,
      h(
        "div",
        { class: "timeline-ends" },
        this.#from,
        h(
          "span",
          { class: "timeline-zoom" },
          this.#button("minus", say("See more of the night"), () => this.#zoom(2)),
          this.#button("plus", say("See less of the night, and closer"), () => this.#zoom(0.5)),
          this.#button("end", say("The night's end"), () => this.#goToEnd()),
        ),
        this.#to,
      ),
    );
    const drawing = this.#drawing;
    drawing.addEventListener("wheel", (event) => this.#wheel(event), { passive: false });
    drawing.addEventListener("pointerdown", (event) => this.#down(event));
    drawing.addEventListener("pointermove", (event) => this.#move(event));
    drawing.addEventListener("pointerup", (event) => this.#up(event));
    drawing.addEventListener("pointercancel", () => (this.#pan = null));
    drawing.addEventListener("dblclick", () => this.#look(null));
    state.on("journal", (event) => {
      if (event.whole) this.#view = null;
      this.#queue();
    });
    setInterval(() => this.#moveNow(), 500);
  }

  #button(picture, label, press) {
    return h(
      "button",
      { class: "quiet", type: "button", title: label, "aria-label": label, onclick: press },
      icon(picture),
    );
  }

  #y(lane) {
    return 3 + (lane + 0.5) * laneHeight;
  }

  // Of the whole night.
  get #whole() {
    const entries = this.#state.journal;
    const first = entries[0]?.time ?? 0;
    return { first, last: Math.max(entries.at(-1)?.time ?? 0, this.#state.uptime(), first + 1) };
  }

  #x(time) {
    const { first, last } = this.#drawn;
    return margin + ((time - first) / (last - first)) * (width - 2 * margin);
  }

  #timeAt(clientX) {
    const box = this.#drawing.getBoundingClientRect();
    const part = (((clientX - box.left) / box.width) * width - margin) / (width - 2 * margin);
    return this.#drawn.first + part * (this.#drawn.last - this.#drawn.first);
  }

  // Null: all of it.
  #look(view) {
    const whole = this.#whole;
    const long = view ? Math.max(closest, view.last - view.first) : Infinity;
    if (long >= whole.last - whole.first) this.#view = null;
    else {
      const first = Math.min(Math.max(view.first, whole.first), whole.last - long);
      this.#view = { first, last: first + long };
    }
    this.#draw();
  }

  // What has been chosen, as long as it is seen.
  get #middle() {
    const { first, last } = this.#drawn;
    const chosen = this.#state.journal.find((entry) => entry.n === this.#marked);
    return chosen && chosen.time >= first && chosen.time <= last ? chosen.time : (first + last) / 2;
  }

  #zoom(factor, around = this.#middle) {
    const { first, last } = this.#drawn;
    this.#look({
      first: around - (around - first) * factor,
      last: around + (last - around) * factor,
    });
  }

  // The last twentieth, which in a long night is where everything happens.
  #goToEnd() {
    const { first, last } = this.#whole;
    this.#look({ first: last - (last - first) / 20, last });
  }

  #wheel(event) {
    event.preventDefault();
    if (Math.abs(event.deltaX) > Math.abs(event.deltaY)) return this.#shift(event.deltaX);
    this.#zoom(event.deltaY > 0 ? 1.25 : 0.8, this.#aimedAt(event.clientX));
  }

  // Who points near an end means the end.
  #aimedAt(clientX) {
    const { first, last } = this.#drawn;
    const time = this.#timeAt(clientX);
    const near = (last - first) * 0.03;
    if (last - time < near) return last;
    return time - first < near ? first : time;
  }

  #shift(pixels, view = this.#drawn) {
    const far = (pixels / this.#drawing.clientWidth) * (view.last - view.first);
    this.#look({ first: view.first + far, last: view.last + far });
  }

  #down(event) {
    this.#drawing.setPointerCapture(event.pointerId);
    this.#pan = { x: event.clientX, view: this.#drawn, moved: false };
  }

  #move(event) {
    if (!this.#pan) return;
    const way = this.#pan.x - event.clientX;
    this.#pan.moved ||= Math.abs(way) > click;
    if (this.#pan.moved && this.#view) this.#shift(way, this.#pan.view);
  }

  #up(event) {
    const pan = this.#pan;
    this.#pan = null;
    if (pan && !pan.moved) this.#choose(event);
  }

  #draw() {
    this.#drawn = this.#view ?? this.#whole;
    const { first, last } = this.#drawn;
    const marks = new Map(); // place -> entry: of many in one place the last is seen
    for (const entry of this.#state.journal) {
      if (entry.time < first || entry.time > last) continue;
      const lane = lanes.indexOf(explain(entry.text).kind);
      const column = Math.round(((entry.time - first) / (last - first)) * columns);
      const place = `${lane} ${column}`;
      if (marks.get(place)?.entry.n !== this.#marked) marks.set(place, { entry, lane });
    }
    this.#marks.replaceChildren(...[...marks.values()].map((mark) => this.#mark(mark)));
    this.#from.textContent = duration(first);
    this.#to.textContent = duration(last);
    this.element.classList.toggle("zoomed", this.#view !== null);
    this.#moveNow();
  }

  #mark({ entry, lane }) {
    const x = this.#x(entry.time);
    const y = this.#y(lane);
    return svg("line", {
      class: `mark ${lanes[lane]}${entry.n === this.#marked ? " chosen" : ""}`,
      x1: x,
      x2: x,
      y1: y - 3,
      y2: y + 3,
      "data-n": entry.n,
    });
  }

  #moveNow() {
    const { first, last } = this.#drawn;
    const now = this.#state.uptime();
    // The scale is drawn again only when time has left it behind.
    if (!this.#view && now > last + (last - first) * 0.02) return this.#queue();
    const x = String(this.#x(this.#view ? now : Math.min(now, last)));
    if (this.#now.getAttribute("x1") === x) return; // time stands still
    this.#now.setAttribute("x1", x);
    this.#now.setAttribute("x2", x);
  }

  #choose(event) {
    const box = this.#drawing.getBoundingClientRect();
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
