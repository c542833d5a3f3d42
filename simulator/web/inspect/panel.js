// Looking inside: point at a view on the phone, or choose it in the tree, and see what it is.
import { byId, h } from "../ui/dom.js";
import { icon } from "../ui/icons.js";
import { say } from "../ui/language.js";
import { Roving } from "../ui/roving.js";
import { toast } from "../ui/toast.js";
import { Ring } from "../phone/ring.js";
import { detailsOf } from "./details.js";
import { readViews } from "./views.js";

export class InsidePanel {
  #screen;
  #handset;
  #ring;
  #all = new Map(); // id -> view
  #shown = null; // id
  #picking = false;
  #asks = false;
  #pick = h(
    "button",
    { class: "soft", id: "inside-pick", type: "button", onclick: () => this.#turn(!this.#picking) },
    icon("inside"),
    h("span", { text: say("Point at a view") }),
  );
  #tree = h("ol", { class: "view-tree", id: "view-tree", "aria-label": say("Views") });
  #details = h("div", { class: "view-details", id: "view-details", "aria-live": "polite" });

  constructor(screen, handset) {
    document.head.append(h("link", { rel: "stylesheet", href: "styles/inside.css" }));
    this.#screen = screen;
    this.#handset = handset;
    this.#ring = new Ring(handset, "view-ring", 0);
    const again = h(
      "button",
      { class: "soft", id: "inside-again", type: "button", onclick: () => this.#read() },
      icon("respring"),
      h("span", { text: say("Look again") }),
    );
    byId("panel-inside").append(
      h(
        "div",
        { class: "panel-head" },
        h("h2", { text: say("Inside") }),
        h("div", { class: "tools" }, this.#pick, again),
      ),
      this.#tree,
      this.#details,
    );
    new Roving(this.#tree, "button");
    this.#tree.addEventListener("click", ({ target }) => this.#choose(target));
    screen.addEventListener("change", () => this.#frame());
    // Before the finger's own listeners: what is pointed at is not touched.
    for (const type of ["pointerdown", "pointermove", "pointerup", "click"])
      handset.glass.parentElement.addEventListener(type, (event) => this.#point(event), true);
    addEventListener("keydown", ({ key }) => key === "Escape" && this.#turn(false));
    this.#read();
  }

  #turn(on) {
    this.#picking = on;
    this.#pick.setAttribute("aria-pressed", String(on));
    this.#handset.glass.classList.toggle("picking", on);
  }

  async #read(place) {
    try {
      const { all, hit } = await readViews(place);
      this.#all = all;
      if (hit) this.#shown = hit.view;
      this.#show();
    } catch (error) {
      toast(error.message, "problem");
    }
  }

  async #point(event) {
    if (!this.#picking || !this.#handset.glass.contains(event.target)) return;
    event.stopPropagation();
    if (event.type === "pointerdown") event.preventDefault();
    if (event.type === "click") return this.#turn(false);
    // One question at a time; the last place counts when the finger is lifted.
    if (this.#asks && event.type === "pointermove") return;
    this.#asks = true;
    await this.#read(this.#handset.pointAt(event.clientX, event.clientY));
    this.#asks = false;
  }

  #choose(target) {
    const row = target.closest("[data-view]");
    if (!row) return;
    this.#shown = row.dataset.view;
    this.#show();
    this.#tree.querySelector(`[data-view="${this.#shown}"]`)?.focus();
  }

  #row(view) {
    const row = h(
      "button",
      { type: "button", "data-view": view.id, class: view.hidden ? "unseen" : "" },
      h("code", { text: view.class }),
      view.text ? h("small", { text: view.text }) : null,
    );
    if (view.id === this.#shown) row.setAttribute("aria-current", "true");
    return h("li", { style: { "--depth": view.depth } }, row);
  }

  #show() {
    const { scrollTop } = this.#tree;
    this.#tree.replaceChildren(...[...this.#all.values()].map((view) => this.#row(view)));
    this.#tree.scrollTop = scrollTop;
    this.#tree.querySelector('[aria-current="true"]')?.scrollIntoView({ block: "nearest" });
    const view = this.#all.get(this.#shown);
    const node = this.#screen.nodes.get(this.#shown)?.node;
    this.#details.replaceChildren(
      ...(view
        ? detailsOf(this.#all, view, node)
        : [
            h("p", {
              class: "lead",
              text: say("Point at a view of the phone, or choose one here."),
            }),
          ]),
    );
    this.#frame();
  }

  #frame() {
    const seen = document.body.dataset.view === "inside";
    this.#ring.place((seen && this.#screen.nodes.get(this.#shown)?.element) || null);
  }
}
