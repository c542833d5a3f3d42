// What kind of phone it is. Applying makes a fresh one, and keeps the extension's settings.
import { post } from "../server/requests.js";
import { byId, h } from "../ui/dom.js";
import { say } from "../ui/language.js";
import { toast } from "../ui/toast.js";
import { expectation, haptics, languages, systems } from "./choices.js";
import { companions, fromLines, standard, toLines } from "./model.js";

const listed = (text) =>
  text
    .split("\n")
    .map((line) => line.trim())
    .filter(Boolean);

export class SetupPanel {
  #state;
  #parts = {};
  #expectation = h("small", { id: "setup-ios-expectation" });
  #form;

  constructor(state) {
    this.#state = state;
    this.#form = this.#makeForm();
    this.#parts.ios.addEventListener("change", () => this.#expect());
    byId("panel-setup").append(
      h(
        "div",
        { class: "panel-head" },
        h("h2", { text: say("Set-up") }),
        h("button", {
          class: "soft",
          id: "setup-standard",
          type: "button",
          text: say("Standard phone"),
          onclick: () => this.#show(standard()),
        }),
      ),
      h("p", {
        class: "lead",
        text: say("What kind of phone this is. Applying makes a fresh phone; the settings stay."),
      }),
      this.#form,
      h("p", { class: "form-problem", id: "setup-problem", role: "alert", hidden: true }),
      h("button", {
        class: "primary",
        id: "setup-apply",
        type: "submit",
        form: "setup-form",
        text: say("Make this phone"),
      }),
    );
    for (const name of ["setup", "snapshot"]) state.on(name, () => this.#reset());
    this.#reset();
  }

  #select(name, choices) {
    this.#parts[name] = h(
      "select",
      { id: `setup-${name}` },
      ...choices.map(([value, text]) => h("option", { value, text })),
    );
    return this.#parts[name];
  }

  #lines(name, placeholder) {
    this.#parts[name] = h("textarea", {
      id: `setup-${name}`,
      rows: 2,
      placeholder,
      spellcheck: "false",
    });
    return this.#parts[name];
  }

  #row(name, label, help, control) {
    return h(
      "div",
      { class: "setting stacked" },
      h(
        "label",
        { class: "setting-words", for: `setup-${name}` },
        h("span", { text: label }),
        typeof help === "string" ? h("small", { text: help }) : help,
      ),
      control,
    );
  }

  #check(name, label) {
    this.#parts[name] = h("input", { type: "checkbox", role: "switch", id: `setup-${name}` });
    return h(
      "div",
      { class: "setting" },
      h("label", { class: "setting-words", for: `setup-${name}`, text: label }),
      h(
        "span",
        { class: "switch" },
        this.#parts[name],
        h("span", { class: "knob", "aria-hidden": "true" }),
      ),
    );
  }

  #makeForm() {
    return h(
      "form",
      { class: "groups scrolls", id: "setup-form", onsubmit: (event) => this.#apply(event) },
      h(
        "fieldset",
        { class: "group" },
        h("legend", { text: say("System") }),
        this.#row(
          "ios",
          say("Version of the system"),
          this.#expectation,
          this.#select(
            "ios",
            systems.map((each) => [each, `iOS ${each}`]),
          ),
        ),
        this.#row("locale", say("Language and region"), null, this.#select("locale", languages)),
        this.#row("haptics", say("What can be felt"), null, this.#select("haptics", haptics)),
      ),
      h(
        "fieldset",
        { class: "group" },
        h("legend", { text: say("Around it") }),
        this.#row(
          "bluetooth",
          say("Connected Bluetooth devices"),
          say("One in each line."),
          this.#lines("bluetooth", "Pillow Speaker"),
        ),
        this.#check("runner", say("The shortcut runner is installed")),
        this.#row(
          "shortcuts",
          say("The owner's shortcuts"),
          say("One in each line. The extension looks for these two."),
          this.#lines("shortcuts", "Dozewell Start\nDozewell End"),
        ),
      ),
      h(
        "fieldset",
        { class: "group" },
        h("legend", { text: say("Other extensions") }),
        ...Object.entries(companions).map(([name, { label }]) =>
          this.#check(`companion-${name}`, label),
        ),
      ),
      h(
        "details",
        { class: "group" },
        h("summary", { text: say("For developers") }),
        this.#row(
          "missing",
          say("Absent classes or methods"),
          say("One in each line: CLASS, or CLASS SELECTOR."),
          this.#lines("missing", "DNDModeAssertionService"),
        ),
        this.#row(
          "others",
          say("More lines of the script language"),
          say("As they may stand before boot."),
          this.#lines("others", 'default "some.key" 3'),
        ),
      ),
    );
  }

  #expect() {
    this.#expectation.textContent = expectation(this.#parts.ios.value);
  }

  #reset() {
    this.#show(fromLines(this.#state.setup?.lines ?? []));
  }

  #choose(select, value) {
    if (![...select.options].some((option) => option.value === value))
      select.append(h("option", { value, text: value }));
    select.value = value;
  }

  #show(model) {
    const p = this.#parts;
    for (const name of ["ios", "locale", "haptics"]) this.#choose(p[name], model[name]);
    this.#expect();
    for (const name of ["bluetooth", "shortcuts", "missing", "others"])
      p[name].value = model[name].join("\n");
    p.runner.checked = model.runner;
    for (const name of Object.keys(companions))
      p[`companion-${name}`].checked = model.companions.includes(name);
  }

  #model() {
    const p = this.#parts;
    const shortcuts = listed(p.shortcuts.value);
    return {
      ios: p.ios.value,
      locale: p.locale.value,
      haptics: p.haptics.value,
      bluetooth: listed(p.bluetooth.value),
      shortcuts,
      runner: p.runner.checked || shortcuts.length > 0,
      missing: listed(p.missing.value),
      others: listed(p.others.value),
      companions: Object.keys(companions).filter((name) => p[`companion-${name}`].checked),
    };
  }

  async #apply(event) {
    event.preventDefault();
    const problem = byId("setup-problem");
    problem.hidden = true;
    const lines = toLines(this.#model());
    try {
      await post("api/setup", { lines });
      toast(say("A fresh phone."));
    } catch (error) {
      const line = lines[(error.body?.line ?? 0) - 1];
      problem.textContent = line ? `${line} — ${error.message}` : error.message;
      problem.hidden = false;
    }
  }
}
