// One line of the script language, typed by hand, with what it printed.
import { run } from "../server/commands.js";
import { read } from "../server/requests.js";
import { h } from "../ui/dom.js";
import { say } from "../ui/language.js";

export class CommandLine {
  #input = h("input", {
    type: "text",
    id: "command-line",
    list: "command-names",
    autocomplete: "off",
    spellcheck: "false",
    autocapitalize: "none",
    placeholder: say("A command, such as: {example}", { example: "advance 10m" }),
    "aria-label": say("A command of the script language"),
  });
  #names = h("datalist", { id: "command-names" });
  #help = h("p", { class: "command-help" });
  #output = h("pre", { class: "command-output", hidden: true, "aria-live": "polite" });
  #commands = new Map();
  #past = [];
  #place = 0;

  constructor() {
    this.element = h(
      "form",
      { class: "command-line", onsubmit: (event) => this.#run(event) },
      this.#input,
      h("button", { class: "primary", type: "submit", text: say("Do") }),
      this.#names,
      this.#help,
      this.#output,
    );
    this.#input.addEventListener("input", () => this.#explain());
    this.#input.addEventListener("keydown", (event) => this.#recall(event));
    this.#input.addEventListener("focus", () => this.#learn(), { once: true });
  }

  async #learn() {
    const commands = await read("api/commands").catch(() => []);
    for (const command of commands) this.#commands.set(command.name, command);
    this.#names.replaceChildren(...commands.map(({ example }) => h("option", { value: example })));
  }

  #explain() {
    const command = this.#commands.get(this.#input.value.trim().split(/\s+/)[0]);
    this.#help.textContent = command ? `${command.usage} — ${command.help}` : "";
  }

  #recall(event) {
    const move = { ArrowUp: -1, ArrowDown: 1 }[event.key];
    if (move === undefined || this.#past.length === 0) return;
    event.preventDefault();
    this.#place = Math.min(this.#past.length, Math.max(0, this.#place + move));
    this.#input.value = this.#past[this.#place] ?? "";
    this.#explain();
  }

  async #run(event) {
    event.preventDefault();
    const line = this.#input.value.trim();
    if (line === "") return;
    this.#past.push(line);
    this.#place = this.#past.length;
    try {
      this.#say((await run(line)).output || say("Done."), false);
      this.#input.value = "";
      this.#explain();
    } catch (error) {
      this.#say(error.message, true);
    }
  }

  #say(text, wrong) {
    this.#output.hidden = false;
    this.#output.textContent = text;
    this.#output.classList.toggle("wrong", wrong);
  }
}
