// The whole night as a slider: wherever it is let go, all is done again from the start up to there,
// which comes to the same.
import { post } from "../server/requests.js";
import { h, setText } from "../ui/dom.js";
import { clockAsIn, duration } from "../ui/format.js";
import { say } from "../ui/language.js";
import { toast } from "../ui/toast.js";

// Everything is done again up to that moment: {uptime}, or just before {line} or {entry}.
export async function goTo(moment) {
  document.body.classList.add("going");
  try {
    await post("api/moment", moment);
    return true;
  } catch (error) {
    toast(error.message, "problem");
    return false;
  } finally {
    document.body.classList.remove("going");
  }
}

export class NightSlider {
  #state;
  #isHeld = false;
  #isGoing = false;
  #input = h("input", {
    type: "range",
    id: "night",
    min: 0,
    max: 1,
    step: "any",
    value: 0,
    "aria-label": say("The night so far"),
    title: say("Back to an earlier moment: everything is done again up to there"),
    oninput: () => this.#hold(),
    onchange: () => this.#go(),
  });
  #where = h("output", { class: "speed-name", for: "night" });

  constructor(state) {
    this.#state = state;
    this.element = h(
      "div",
      { class: "night-line" },
      h("span", { text: say("The night"), "aria-hidden": "true" }),
      this.#input,
      this.#where,
    );
  }

  get #end() {
    return Math.max(this.#state.script?.end ?? 0, this.#state.uptime());
  }

  #say(uptime) {
    const text = say("{time} of {whole}", { time: duration(uptime), whole: duration(this.#end) });
    setText(this.#where, text);
    this.#input.setAttribute("aria-valuetext", text);
    this.#input.style.setProperty("--part", uptime / Math.max(this.#end, 0.001));
  }

  #hold() {
    this.#isHeld = true;
    const uptime = Number(this.#input.value);
    this.#say(uptime);
    const wall = this.#state.wall() - this.#state.uptime() + uptime;
    const clock = clockAsIn(this.#state.setup.locale, wall).join(":");
    this.#where.textContent = say("to {clock}", { clock });
  }

  async #go() {
    this.#isGoing = true;
    await goTo({ uptime: Number(this.#input.value) });
    this.#isHeld = this.#isGoing = false;
    this.show();
  }

  show() {
    const isOff = this.#state.phone.host === "off";
    this.#input.disabled = this.#isGoing || (isOff && !this.#state.script?.end);
    if (this.#isHeld) return;
    const end = String(Math.max(this.#end, 0.001));
    if (this.#input.max !== end) this.#input.max = end; // the same one too is laid out anew
    this.#input.value = isOff ? 0 : this.#state.uptime();
    this.#say(Number(this.#input.value));
  }
}
