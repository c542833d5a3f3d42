// A phone script, opened from a file or an address and played line by line on a fresh phone.
import { below, takeParameter } from "../server/address.js";
import { forget, post, read } from "../server/requests.js";
import { byId, h } from "../ui/dom.js";
import { icon } from "../ui/icons.js";
import { say } from "../ui/language.js";
import { takeMusic } from "../player/invitation.js";
import { filesOf } from "../player/local.js";
import { goTo } from "../time/slider.js";
import { toast } from "../ui/toast.js";
import { ScriptText } from "./text.js";
import { CommandLine } from "./line.js";
import { Pictures } from "./pictures.js";

const largest = 1024 * 1024; // bytes

const states = {
  ready: say("Ready"),
  running: say("Playing"),
  finished: say("Played to its end"),
  failed: say("Stopped at a failure"),
};

export class ScriptPanel {
  #state;
  #text = new ScriptText((line) => goTo({ line }));
  #status = h("p", { class: "script-status", role: "status" });
  #problem = h("p", { class: "form-problem", role: "alert", hidden: true });
  #file = h("input", {
    type: "file",
    accept: ".phone,text/plain",
    class: "visually-hidden",
    id: "script-file",
    "aria-label": say("Script file"),
    onchange: () => this.#openFile(this.#file.files[0]),
  });
  #buttons = {};
  #loaded = null; // name of the script whose text is shown

  constructor(state) {
    this.#state = state;
    byId("panel-script").append(
      h("div", { class: "panel-head" }, h("h2", { text: say("Script") }), this.#makeTools()),
      new CommandLine().element,
      new Pictures(state).element,
      h("hr", {}),
      this.#status,
      this.#problem,
      this.#text.element,
      this.#makeEmpty(),
    );
    state.on("script", (event) => this.#show(event.detail));
    this.#acceptDrops();
    this.#openAddress();
  }

  #button(name, picture, text, title, press) {
    this.#buttons[name] = h(
      "button",
      {
        class: "soft",
        id: `script-${name}`,
        type: "button",
        title,
        onclick: press,
        "aria-label": text ? null : title,
      },
      icon(picture),
      text ? h("span", { text }) : null,
    );
    return this.#buttons[name];
  }

  #makeTools() {
    return h(
      "div",
      { class: "tools" },
      this.#file,
      this.#button("open", "open", say("Open"), say("Opens a phone script from a file"), () =>
        this.#file.click(),
      ),
      this.#button("back", "back", "", say("Back to before the line played last"), () =>
        goTo({ line: this.#text.lineBefore(this.#state.script.line) }),
      ),
      this.#button("step", "step", say("Line"), say("Plays the next line"), () =>
        this.#play({ lines: 1 }),
      ),
      this.#button("run", "play", say("All"), say("Plays what is left"), () =>
        this.#play({ run: true }),
      ),
      this.#button("close", "close", "", say("Close the script"), () => this.#close()),
    );
  }

  #makeEmpty() {
    return h(
      "div",
      { class: "empty script-empty" },
      h("p", {
        text: say(
          "Open a phone script, or drop its file anywhere on this page. It gets a fresh phone, " +
            "and waits before its first line.",
        ),
      }),
      h("button", {
        class: "soft",
        id: "script-replay",
        type: "button",
        text: say("Play again what was done so far"),
        onclick: () => this.#openFrom(below("api/recording.phone")),
      }),
    );
  }

  #acceptDrops() {
    const files = (event) => event.dataTransfer?.types.includes("Files");
    document.body.dataset.drop = say("Drop a phone script, or music");
    addEventListener("dragover", (event) => {
      if (!files(event)) return;
      event.preventDefault();
      document.body.classList.add("dropping");
    });
    addEventListener(
      "dragleave",
      (event) => event.relatedTarget === null && document.body.classList.remove("dropping"),
    );
    addEventListener("drop", (event) => {
      if (!files(event)) return;
      event.preventDefault();
      document.body.classList.remove("dropping");
      this.#takeDropped(event.dataTransfer);
    });
  }

  async #takeDropped(transfer) {
    const files = await filesOf(transfer);
    if (!(await takeMusic(files))) await this.#openFile(files[0]);
  }

  async #openFile(file) {
    if (!file) return;
    this.#file.value = "";
    if (file.size > largest)
      return toast(say("{name} is too large for a phone script.", { name: file.name }), "problem");
    await this.#open(file.name, await file.text());
    byId("tab-script").click();
  }

  // ?script=/path at this server, below the page's place; other machines are not asked.
  async #openAddress() {
    const address = takeParameter("script"); // a reload must not begin the script again
    if (address === null) return;
    const url = below(address);
    if (url.origin !== location.origin)
      return toast(say("A script is opened from this server only."), "problem");
    await this.#openFrom(url);
  }

  async #openFrom(url) {
    const name = url.pathname.split("/").at(-1);
    try {
      const response = await fetch(url);
      if (!response.ok) throw new Error(say("The server has no {name}.", { name }));
      await this.#open(name, await response.text());
      byId("tab-script").click();
    } catch (error) {
      toast(error.message, "problem");
    }
  }

  async #open(name, text) {
    try {
      await post("api/script", { name, text });
    } catch (error) {
      toast(
        error.body?.line
          ? say("{name}, line {line}: {message}", {
              name,
              line: error.body.line,
              message: error.message,
            })
          : error.message,
        "problem",
      );
    }
  }

  async #play(how) {
    try {
      await post("api/script/step", how);
    } catch (error) {
      toast(error.message, "problem");
    }
  }

  async #close() {
    try {
      await forget("api/script");
    } catch (error) {
      toast(error.message, "problem");
    }
  }

  async #show(script) {
    const open = script !== null && script !== undefined;
    byId("panel-script").classList.toggle("has-script", open);
    for (const name of ["step", "run"])
      this.#buttons[name].disabled = !open || script.state === "finished";
    for (const name of ["close", "back"]) this.#buttons[name].hidden = !open;
    this.#status.textContent = open ? `${script.name}: ${states[script.state]}` : "";
    this.#problem.hidden = !script?.error;
    if (script?.error)
      this.#problem.textContent = say("Line {line}: {message}", {
        line: script.error.line,
        message: script.error.error,
      });
    if (!open) return this.#forget();
    await this.#loadText(script);
    this.#text.mark(script.line, script.state, script.error?.line);
    this.#buttons.back.disabled = this.#text.lineBefore(script.line) === null;
  }

  #forget() {
    this.#loaded = null;
    this.#text.fill("");
  }

  async #loadText(script) {
    const key = `${this.#state.epoch} ${script.name}`;
    if (this.#loaded === key) return;
    this.#loaded = key;
    try {
      this.#text.fill((await read("api/script")).text);
    } catch (error) {
      this.#loaded = null;
      toast(error.message, "problem");
    }
  }
}
