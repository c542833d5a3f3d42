// The panels' tabs. Where there is room, music, phone and time are always to be seen and have no
// tab.
import { byId, h } from "./dom.js";
import { icon } from "./icons.js";
import { isRightToLeft, say } from "./language.js";
import { toast } from "./toast.js";

const tabs = [
  { name: "phone", label: say("Phone"), narrow: true },
  { name: "music", label: say("Music"), narrow: true },
  { name: "time", label: say("Time"), narrow: true },
  { name: "journal", label: say("Journal") },
  { name: "settings", label: say("Settings") },
  { name: "setup", label: say("Set-up") },
  { name: "script", label: say("Script") },
  { name: "inside", label: say("Inside") },
];
const narrow = matchMedia("(max-width: 819px), (max-height: 559px)");
const key = "dozewell.tab";

export class Tabs {
  #buttons = new Map();
  #begin;

  // `begin` has a function for each panel that is made when it is first shown, by its name.
  constructor(begin = {}) {
    this.#begin = begin;
    for (const { name, label, narrow: only } of tabs) {
      const button = h(
        "button",
        {
          role: "tab",
          type: "button",
          id: `tab-${name}`,
          class: only ? "narrow-only" : "",
          "aria-controls": only && name === "phone" ? "phone" : `panel-${name}`,
          onclick: () => this.show(name),
        },
        icon(name),
        h("span", { text: label }),
      );
      this.#buttons.set(name, button);
      byId("tabs").append(button);
    }
    byId("tabs").addEventListener("keydown", (event) => this.#arrow(event));
    narrow.addEventListener("change", () => this.#settle());
    this.#settle();
  }

  #visible() {
    return tabs.filter((tab) => narrow.matches || !tab.narrow).map((tab) => tab.name);
  }

  #settle() {
    const kept = sessionStorage.getItem(key);
    const names = this.#visible();
    this.show(names.includes(kept) ? kept : narrow.matches ? "phone" : "journal");
  }

  // What could not be fetched is fetched when it is asked for again.
  async #make(name) {
    const begin = this.#begin[name];
    delete this.#begin[name];
    try {
      await begin?.();
    } catch (error) {
      this.#begin[name] = begin;
      toast(error.message, "problem");
    }
  }

  show(name) {
    sessionStorage.setItem(key, name);
    this.#make(name);
    document.body.dataset.view = name;
    for (const [each, button] of this.#buttons) {
      button.setAttribute("aria-selected", String(each === name));
      button.tabIndex = each === name ? 0 : -1;
    }
  }

  #arrow(event) {
    const onward = isRightToLeft ? -1 : 1;
    const move = { ArrowRight: onward, ArrowLeft: -onward }[event.key];
    if (move === undefined) return;
    const names = this.#visible();
    const next =
      names[(names.indexOf(document.body.dataset.view) + move + names.length) % names.length];
    this.show(next);
    this.#buttons.get(next).focus();
  }
}
