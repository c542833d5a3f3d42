// The extension's settings, in the server's groups and words. Each change is a command of the
// phone.
import { perform, quoted } from "../server/commands.js";
import { read } from "../server/requests.js";
import { byId, h } from "../ui/dom.js";
import { icon } from "../ui/icons.js";
import { say } from "../ui/language.js";
import { toast } from "../ui/toast.js";
import { makeField } from "./fields.js";
import { settingInWords } from "./words.js";

const written = (value) =>
  typeof value === "boolean"
    ? value
      ? "YES"
      : "NO"
    : typeof value === "string"
      ? quoted(value)
      : String(value);

export class SettingsPanel {
  #state;
  #fields = new Map(); // key -> field
  #place = h("div", { class: "groups scrolls" });

  constructor(state) {
    this.#state = state;
    byId("panel-settings").append(
      h(
        "div",
        { class: "panel-head" },
        h("h2", { text: say("Settings") }),
        h(
          "button",
          { class: "soft", id: "settings-reset", type: "button", onclick: () => this.#resetAll() },
          icon("reset"),
          h("span", { text: say("Defaults") }),
        ),
      ),
      this.#place,
    );
    for (const name of ["settings", "snapshot"]) state.on(name, () => this.#show());
    this.#load();
  }

  async #load() {
    try {
      this.#build((await read("api/settings")).map(settingInWords));
      this.#show();
    } catch (error) {
      toast(error.message, "problem");
    }
  }

  #build(settings) {
    const groups = Map.groupBy
      ? Map.groupBy(settings, (each) => each.group)
      : this.#grouped(settings);
    for (const [name, members] of groups)
      this.#place.append(
        h(
          "fieldset",
          { class: "group" },
          h("legend", { text: name }),
          ...members.map((each) => this.#row(each)),
          h("p", { class: "footer", text: members[0].footer }),
        ),
      );
  }

  #grouped(settings) {
    const groups = new Map();
    for (const each of settings) groups.set(each.group, [...(groups.get(each.group) ?? []), each]);
    return groups;
  }

  #row(setting) {
    const field = makeField(setting, (value) => perform(`set ${setting.key} ${written(value)}`));
    const reset = h(
      "button",
      {
        class: "reset",
        type: "button",
        title: say("Back to the default"),
        "aria-label": say("{setting}: back to the default", { setting: setting.label }),
        hidden: true,
        onclick: () => perform(`set ${setting.key} none`),
      },
      icon("reset"),
    );
    this.#fields.set(setting.key, { setting, field, reset });
    return h(
      "div",
      { class: `setting ${setting.type}`, "data-key": setting.key },
      h(
        "label",
        { class: "setting-words", for: field.input.id },
        h("span", { text: setting.label }),
      ),
      h("div", { class: "setting-value" }, reset, field.element),
    );
  }

  #resetAll() {
    const changed = [...this.#fields.values()]
      .filter(({ setting }) => this.#differs(setting))
      .map(({ setting }) => `set ${setting.key} none`);
    if (changed.length > 0) perform(...changed);
    else toast(say("All settings are as they come."));
  }

  #differs({ key, default: standard }) {
    const value = this.#state.settings[key];
    return (
      value !== undefined && value !== standard && !(value === null && (standard ?? "") === "")
    );
  }

  #show() {
    // A phone that is off tells no values.
    this.#place.inert = this.#state.phone.host === "off";
    for (const { setting, field, reset } of this.#fields.values()) {
      field.show(this.#state.settings[setting.key] ?? setting.default);
      reset.hidden = !this.#differs(setting);
    }
  }
}
