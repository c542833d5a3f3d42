// The journal: the story first, each piece of it open to its lines; or the lines alone, filtered.
import { goTo } from "../time/slider.js";
import { byId, h } from "../ui/dom.js";
import { clockAsIn, uptime } from "../ui/format.js";
import { icon } from "../ui/icons.js";
import { say, sayCount } from "../ui/language.js";
import { paced } from "../ui/paced.js";
import { Roving } from "../ui/roving.js";
import { toast } from "../ui/toast.js";
import { explain, kinds } from "./meaning.js";
import { Story } from "./story.js";
import { Timeline } from "./timeline.js";

const shownAtMost = 600; // rows; earlier ones are in the recording
const linesAtMost = 200; // of one piece
const nearEnd = 40; // pixels: who reads further up is left there
const addedEvery = 100; // milliseconds: in an hour per second hundreds of entries are written
const wideKey = "dozewell.wide";

// Entries that follow each other, with how many are missing before them; `last` is the number of
// the entry before.
function runsOf(entries, last) {
  const runs = [];
  for (const entry of entries) {
    const missing = entry.n - last - 1;
    if (missing > 0 || runs.length === 0) runs.push({ missing, entries: [] });
    runs.at(-1).entries.push(entry);
    last = entry.n;
  }
  return runs;
}

// Said where the lines would stand that the page was not sent, or does not keep.
function gapRow(count) {
  const text = sayCount(
    "One line is left out here. All are in the whole journal.",
    "{count} lines are left out here. All are in the whole journal.",
    count,
  );
  const whole = say("The whole journal");
  const link = h("a", { href: "api/journal", download: "journal.json", text: whole });
  const row = h("li", { class: "gap" }, h("span", { text }), link);
  row.entries = [];
  return row;
}

export class JournalPanel {
  #state;
  #list = h("ol", {
    class: "entries",
    id: "entries",
    "aria-label": say("Entries of the journal"),
  });
  #filter = h("input", {
    type: "search",
    id: "journal-filter",
    placeholder: say("Filter"),
    "aria-label": say("Filter the journal"),
    oninput: () => this.#rebuild(),
  });
  #kind = h(
    "select",
    {
      id: "journal-kind",
      "aria-label": say("What of the journal is shown"),
      onchange: () => this.#rebuild(),
    },
    h("option", { value: "", text: say("The story") }),
    h("option", { value: "all", text: say("Every line") }),
    ...Object.entries(kinds).map(([value, text]) => h("option", { value, text })),
  );
  #empty = h("p", { class: "empty", text: say("What the phone does is written down here.") });
  #timeline;
  #story = new Story();
  #rows = new Map(); // piece or entry's number -> row
  #follows = true; // shows what comes; not while somebody reads further up
  #coming = []; // entries that have no row yet
  #last = 0; // number of the last entry that was looked at
  #isCut = false; // rows are gone from its beginning
  #addSoon = paced(addedEvery, () => this.#addRows());

  constructor(state) {
    this.#state = state;
    this.#timeline = new Timeline(state, (n) => this.reveal(n));
    byId("panel-journal").append(
      h("div", { class: "panel-head" }, h("h2", { text: say("Journal") }), this.#tools()),
      this.#timeline.element,
      h("div", { class: "filter-line" }, this.#filter, this.#kind),
      this.#empty,
      this.#list,
    );
    new Roving(this.#list, ".entry-line");
    this.#list.addEventListener("scroll", () => (this.#follows = this.#isAtEnd()));
    new ResizeObserver(() => this.#follow()).observe(this.#list);
    this.#list.addEventListener("click", ({ target }) => {
      const line = target.closest(".entry-line");
      if (line) this.#toggle(line.parentElement);
    });
    state.on("journal", (event) => (event.whole ? this.#rebuild() : this.#add(event.detail)));
    this.#widen(localStorage.getItem(wideKey) === "yes");
  }

  #tools() {
    return h(
      "div",
      { class: "tools" },
      h(
        "button",
        {
          class: "soft wide-only",
          id: "journal-wide",
          type: "button",
          onclick: () => this.#widen(!document.body.classList.contains("wide-side")),
        },
        icon("wide"),
      ),
      h(
        "button",
        {
          class: "soft",
          id: "copy-recording",
          type: "button",
          title: say("Copies what was done, as a phone script"),
          onclick: () => this.#copy(),
        },
        icon("copy"),
        h("span", { text: say("Copy") }),
      ),
      h(
        "a",
        {
          class: "soft",
          id: "download-recording",
          href: "api/recording.phone",
          download: "recording.phone",
          title: say("The same as a file: dozewell-simulator play FILE"),
        },
        icon("download"),
        h("span", { text: say("Save") }),
      ),
    );
  }

  #widen(isWide) {
    document.body.classList.toggle("wide-side", isWide);
    localStorage.setItem(wideKey, isWide ? "yes" : "no");
    const button = byId("journal-wide");
    button.title = isWide ? say("Narrower") : say("Wider");
    button.setAttribute("aria-label", button.title);
    button.setAttribute("aria-pressed", String(isWide));
  }

  async #copy() {
    try {
      const response = await fetch("api/recording.phone");
      if (!response.ok) throw new Error((await response.json()).error);
      await navigator.clipboard.writeText(await response.text());
      toast(say("Copied: what was done, as a phone script."));
    } catch (error) {
      toast(say("Not copied: {message}", { message: error.message }), "problem");
    }
  }

  get #isStory() {
    return this.#kind.value === "" && this.#filter.value.trim() === "";
  }

  #fits(entry) {
    const words = this.#filter.value.trim().toLowerCase();
    const kind = this.#kind.value === "all" ? "" : this.#kind.value;
    if (kind && explain(entry.text).kind !== kind) return false;
    return words === "" || entry.text.toLowerCase().includes(words);
  }

  // Of the phone's clock, as far as nobody has set it since.
  #clock(time) {
    const wall = this.#state.wall() - this.#state.uptime() + time;
    return clockAsIn(this.#state.setup.locale, wall).join(":");
  }

  #rowOf(kind, time, content) {
    return h(
      "li",
      { class: `entry ${kind}` },
      h(
        "button",
        { class: "entry-line", type: "button", "aria-expanded": "false" },
        h("time", { text: time }),
        ...content,
      ),
    );
  }

  #lineRow(entry) {
    const { kind } = explain(entry.text);
    const row = this.#rowOf(kind, uptime(entry.time), [h("code", { text: entry.text })]);
    row.entries = [entry];
    this.#rows.set(entry.n, row);
    return row;
  }

  #showPiece(piece) {
    let row = this.#rows.get(piece);
    const isNew = row === undefined;
    if (isNew) {
      row = this.#rowOf(piece.kind, this.#clock(piece.entries[0].time), [
        h("span", { class: "piece" }),
        h("small", { class: "count" }),
      ]);
      row.entries = piece.entries;
      this.#rows.set(piece, row);
      this.#list.append(row);
    }
    row.className = `entry ${piece.kind}${piece.key === null ? " quiet-piece" : ""}`;
    row.querySelector(".piece").textContent = piece.text;
    row.querySelector(".count").textContent = piece.entries.length > 1 ? piece.entries.length : "";
    const details = row.querySelector(".entry-details");
    if (details && details.children.length < linesAtMost)
      details.append(
        ...piece.entries.slice(details.children.length).map((entry) => this.#detail(entry)),
      );
  }

  #rebuild() {
    this.#coming = [];
    this.#rows.clear();
    this.#list.replaceChildren();
    this.#story = new Story();
    this.#isCut = false;
    this.#last = (this.#state.journal[0]?.n ?? 1) - 1;
    this.#addEntries(this.#state.journal);
    this.#empty.hidden = this.#state.journal.length > 0;
    this.#follows = true;
    this.#follow();
  }

  #addEntries(entries) {
    for (const run of runsOf(entries, this.#last)) {
      if (run.missing > 0) this.#list.append(gapRow(run.missing));
      if (this.#isStory) this.#tell(run.entries);
      else this.#showLines(run.entries);
    }
    this.#last = entries.at(-1)?.n ?? this.#last;
    this.#sayEarlier();
  }

  #showLines(entries) {
    const fitting = entries.filter((entry) => this.#fits(entry));
    this.#isCut ||= fitting.length > shownAtMost;
    this.#list.append(...fitting.slice(-shownAtMost).map((entry) => this.#lineRow(entry)));
    while (this.#list.children.length > shownAtMost) {
      this.#list.firstElementChild.remove();
      this.#isCut = true;
    }
  }

  #tell(entries) {
    for (const piece of this.#story.add(entries)) this.#showPiece(piece);
    const { pieces } = this.#story;
    for (const piece of pieces.splice(0, Math.max(0, pieces.length - shownAtMost))) {
      this.#rows.get(piece)?.remove();
      this.#rows.delete(piece);
      this.#isCut = true;
    }
  }

  #sayEarlier() {
    const list = this.#list;
    while (list.firstElementChild?.matches(".gap")) list.firstElementChild.remove();
    const first = this.#isCut ? list.firstElementChild?.entries[0] : this.#state.journal[0];
    if (first?.n > 1) list.prepend(gapRow(first.n - 1));
  }

  #isAtEnd() {
    const { scrollHeight, scrollTop, clientHeight } = this.#list;
    return scrollHeight - scrollTop - clientHeight < nearEnd;
  }

  #follow() {
    if (this.#follows) this.#list.scrollTop = this.#list.scrollHeight;
  }

  #add(entries) {
    this.#coming.push(...entries);
    this.#addSoon();
  }

  #addRows() {
    const follows = this.#follows;
    this.#addEntries(this.#coming.splice(0));
    this.#empty.hidden = this.#state.journal.length > 0;
    this.#follows = follows;
    this.#follow();
  }

  #toggle(row) {
    const details = row.querySelector(".entry-details");
    row.querySelector(".entry-line").setAttribute("aria-expanded", String(!details));
    if (details) return details.remove();
    this.#follows = false;
    row.append(
      h(
        "ol",
        { class: "entry-details" },
        ...row.entries.slice(0, linesAtMost).map((entry) => this.#detail(entry)),
      ),
    );
    const isTall = row.offsetHeight > this.#list.clientHeight;
    row.scrollIntoView({ block: isTall ? "start" : "nearest" });
    this.#timeline.mark(row.entries[0].n);
  }

  #detail(entry) {
    const { kind, meaning } = explain(entry.text);
    return h(
      "li",
      { class: `detail ${kind}`, "data-n": entry.n },
      h("pre", { text: entry.text }),
      meaning ? h("p", { text: meaning }) : null,
      h(
        "div",
        { class: "detail-foot" },
        h("span", { text: `${this.#clock(entry.time)} · ${uptime(entry.time)} · ${kinds[kind]}` }),
        h("button", {
          class: "quiet",
          type: "button",
          text: say("Go to just before it"),
          onclick: () => goTo({ entry: entry.n }),
        }),
      ),
    );
  }

  #rowWith(n) {
    const holds = (row) => row.entries.some((entry) => entry.n === n);
    return [...this.#list.children].find(holds);
  }

  // Opens what that entry is in, whatever the filter is.
  reveal(n) {
    let row = this.#rowWith(n);
    if (!row) {
      this.#filter.value = "";
      this.#kind.value = "";
      this.#rebuild();
      row = this.#rowWith(n);
    }
    if (!row) return;
    if (!row.querySelector(".entry-details")) this.#toggle(row);
    row.scrollIntoView({ block: "start" });
    row.querySelector(`[data-n="${n}"]`)?.scrollIntoView({ block: "nearest" });
    row.querySelector(".entry-line").focus({ preventScroll: true });
    this.#timeline.mark(n);
  }
}
