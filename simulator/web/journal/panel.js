// The journal, as it is written: filtered, each entry open to a closer look.
import { byId, h } from "../ui/dom.js";
import { uptime } from "../ui/format.js";
import { icon } from "../ui/icons.js";
import { paced } from "../ui/paced.js";
import { Roving } from "../ui/roving.js";
import { toast } from "../ui/toast.js";
import { explain, kinds } from "./meaning.js";
import { Timeline } from "./timeline.js";

const shownAtMost = 600; // rows; earlier ones are in the recording
const nearEnd = 40; // pixels: who reads further up is left there
const addedEvery = 100; // milliseconds: in an hour per second hundreds of entries are written

export class JournalPanel {
  #state;
  #list = h("ol", { class: "entries", id: "entries", "aria-label": "Entries of the journal" });
  #filter = h("input", {
    type: "search",
    id: "journal-filter",
    placeholder: "Filter",
    "aria-label": "Filter the journal",
    oninput: () => this.#rebuild(),
  });
  #kind = h(
    "select",
    { "aria-label": "Kind of entry", onchange: () => this.#rebuild() },
    h("option", { value: "", text: "Everything" }),
    ...Object.entries(kinds).map(([value, text]) => h("option", { value, text })),
  );
  #empty = h("p", { class: "empty", text: "What the phone does is written down here." });
  #timeline;
  #follows = true; // shows what comes; not while somebody reads further up
  #coming = []; // entries that have no row yet
  #addSoon = paced(addedEvery, () => this.#addRows());

  constructor(state) {
    this.#state = state;
    this.#timeline = new Timeline(state, (n) => this.reveal(n));
    byId("panel-journal").append(
      h("div", { class: "panel-head" }, h("h2", { text: "Journal" }), this.#tools()),
      this.#timeline.element,
      h("div", { class: "filter-line" }, this.#filter, this.#kind),
      this.#empty,
      this.#list,
    );
    new Roving(this.#list, ".entry-line");
    this.#list.addEventListener("scroll", () => (this.#follows = this.#isAtEnd()));
    new ResizeObserver(() => this.#follow()).observe(this.#list);
    this.#list.addEventListener("click", (event) => this.#toggle(event.target.closest("li")));
    state.on("journal", (event) => (event.whole ? this.#rebuild() : this.#add(event.detail)));
  }

  #tools() {
    return h(
      "div",
      { class: "tools" },
      h(
        "button",
        {
          class: "soft",
          id: "copy-recording",
          type: "button",
          title: "Copies what was done, as a phone script",
          onclick: () => this.#copy(),
        },
        icon("copy"),
        h("span", { text: "Copy" }),
      ),
      h(
        "a",
        {
          class: "soft",
          id: "download-recording",
          href: "api/recording.phone",
          download: "recording.phone",
          title: "The same as a file: dozewell-simulator play FILE",
        },
        icon("download"),
        h("span", { text: "Save" }),
      ),
    );
  }

  async #copy() {
    try {
      const response = await fetch("api/recording.phone");
      if (!response.ok) throw new Error((await response.json()).error);
      await navigator.clipboard.writeText(await response.text());
      toast("Copied: what was done, as a phone script.");
    } catch (error) {
      toast(`Not copied: ${error.message}`, "problem");
    }
  }

  #fits(entry) {
    const words = this.#filter.value.trim().toLowerCase();
    if (this.#kind.value && explain(entry.text).kind !== this.#kind.value) return false;
    return words === "" || entry.text.toLowerCase().includes(words);
  }

  #row(entry) {
    const { kind } = explain(entry.text);
    return h(
      "li",
      { "data-n": entry.n, class: `entry ${kind}` },
      h(
        "button",
        { class: "entry-line", type: "button", "aria-expanded": "false" },
        h("time", { text: uptime(entry.time) }),
        h("code", { text: entry.text }),
      ),
    );
  }

  #rebuild() {
    this.#coming = [];
    const rows = this.#state.journal.filter((entry) => this.#fits(entry)).slice(-shownAtMost);
    this.#list.replaceChildren(...rows.map((entry) => this.#row(entry)));
    this.#empty.hidden = this.#state.journal.length > 0;
    this.#follows = true;
    this.#follow();
  }

  #isAtEnd() {
    const { scrollHeight, scrollTop, clientHeight } = this.#list;
    return scrollHeight - scrollTop - clientHeight < nearEnd;
  }

  #follow() {
    if (this.#follows) this.#list.scrollTop = this.#list.scrollHeight;
  }

  #add(entries) {
    this.#coming.push(...entries.filter((entry) => this.#fits(entry)));
    this.#coming.splice(0, this.#coming.length - shownAtMost);
    this.#addSoon();
  }

  #addRows() {
    const list = this.#list;
    const follows = this.#follows;
    list.append(...this.#coming.splice(0).map((entry) => this.#row(entry)));
    while (list.children.length > shownAtMost) list.firstElementChild.remove();
    this.#empty.hidden = true;
    this.#follows = follows;
    this.#follow();
  }

  #toggle(row) {
    if (!row) return;
    const details = row.querySelector(".entry-details");
    row.firstElementChild.setAttribute("aria-expanded", String(!details));
    if (details) return details.remove();
    row.append(this.#details(Number(row.dataset.n)));
    this.#timeline.mark(Number(row.dataset.n));
  }

  #details(n) {
    const entry = this.#state.journal.find((each) => each.n === n);
    const { kind, meaning } = explain(entry.text);
    const wall = new Date((this.#state.wall() - this.#state.uptime() + entry.time) * 1000);
    return h(
      "div",
      { class: "entry-details" },
      meaning ? h("p", { text: meaning }) : null,
      h(
        "dl",
        {},
        h("dt", { text: "Kind" }),
        h("dd", { text: kinds[kind] }),
        h("dt", { text: "On the phone's clock" }),
        h("dd", { text: wall.toISOString().replace("T", " ").replace("Z", "") }),
        h("dt", { text: "Line" }),
        h("dd", { text: `${n}` }),
      ),
      h("pre", { text: entry.text }),
    );
  }

  // Opens that entry, whatever the filter is.
  reveal(n) {
    let row = this.#list.querySelector(`[data-n="${n}"]`);
    if (!row) {
      this.#filter.value = "";
      this.#kind.value = "";
      this.#rebuild();
      row = this.#list.querySelector(`[data-n="${n}"]`);
    }
    if (!row) return;
    if (!row.querySelector(".entry-details")) this.#toggle(row);
    row.scrollIntoView({ block: "nearest" });
    row.firstElementChild.focus({ preventScroll: true });
  }
}
