// The phone's clock and how fast it goes: from life's own pace to an hour in a second.
import { post } from "../server/requests.js";
import { byId, h, setText } from "../ui/dom.js";
import { clockAsIn, clockDate, duration } from "../ui/format.js";
import { icon } from "../ui/icons.js";
import { say } from "../ui/language.js";
import { toast } from "../ui/toast.js";
import { wayToEnd } from "./night.js";
import { NightSlider } from "./slider.js";

const speeds = [1, 2, 5, 10, 30, 60, 120, 300, 600, 1800, 3600];
const words = {
  1: say("as in life"),
  60: say("a minute in a second"),
  3600: say("an hour in a second"),
};

const speedIndex = (speed) => {
  let nearest = 0;
  speeds.forEach((each, index) => {
    if (Math.abs(Math.log(each / speed)) < Math.abs(Math.log(speeds[nearest] / speed)))
      nearest = index;
  });
  return nearest;
};

export class TimePanel {
  #state;
  #parts = {};
  #night;

  constructor(state) {
    this.#state = state;
    this.#night = new NightSlider(state);
    byId("panel-time").append(
      this.#makeClock(),
      this.#makeSpeed(),
      this.#makeJumps(),
      this.#night.element,
    );
    for (const name of ["clock", "timer", "phone", "player", "snapshot"])
      state.on(name, () => this.#show());
    setInterval(() => this.#tick(), 200);
    this.#show();
  }

  // What comes of it is told by the stream: the answer may be older than what has come there.
  async #ask(wish) {
    try {
      await post("api/time", wish);
    } catch (error) {
      toast(error.message, "problem");
    }
  }

  #makeClock() {
    const p = this.#parts;
    p.time = h("span", { class: "clock-time" });
    p.seconds = h("span", { class: "clock-seconds" });
    p.date = h("p", { class: "clock-date" });
    p.uptime = h("p", { class: "clock-uptime" });
    p.pause = h("button", {
      class: "round big",
      id: "time-pause",
      type: "button",
      onclick: () => this.#ask({ paused: !this.#state.clock.paused }),
    });
    return h(
      "div",
      { class: "clock-line" },
      h("div", {}, h("p", { class: "clock" }, p.time, p.seconds), p.date, p.uptime),
      p.pause,
    );
  }

  #makeSpeed() {
    const p = this.#parts;
    p.speed = h("input", {
      type: "range",
      id: "speed",
      min: 0,
      max: speeds.length - 1,
      step: 1,
      value: 0,
      "aria-label": say("Speed of time"),
      oninput: () => this.#ask({ speed: speeds[Number(p.speed.value)] }),
    });
    p.name = h("output", { class: "speed-name", for: "speed" });
    return h(
      "div",
      { class: "speed-line" },
      h("div", { class: "speed-words" }, h("span", { text: say("Speed") }), p.name),
      p.speed,
      h(
        "div",
        { class: "speed-marks", "aria-hidden": "true" },
        ...["1×", "60×", "3600×"].map((text) => h("span", { text })),
      ),
    );
  }

  #makeJumps() {
    const p = this.#parts;
    p.step = this.#jump("time-step", "step", say("Next event"), () => ({ step: true }));
    p.step.setAttribute("aria-describedby", "time-end-reason");
    p.minute = this.#jump("time-minute", "time", say("+1 min"), () => ({ advance: 60 }));
    p.minute.title = say("Lets a minute pass at once");
    p.end = this.#jump("time-end", "end", "", () => wayToEnd(this.#state).wish);
    p.end.setAttribute("aria-describedby", "time-end-reason");
    p.reason = h("p", { class: "jump-reason", id: "time-end-reason" });
    return h("div", { class: "jumps" }, p.step, p.minute, p.end, p.reason);
  }

  #jump(id, name, text, wish) {
    return h(
      "button",
      { class: "soft", id, type: "button", onclick: () => this.#ask(wish()) },
      icon(name),
      h("span", { text }),
    );
  }

  // Who cannot press it reads why.
  #showWayToEnd() {
    const p = this.#parts;
    const { host, due } = this.#state.phone;
    const isOff = host === "off";
    const { label, reason } = wayToEnd(this.#state);
    const why = isOff ? say("Time passes once the phone is on.") : (reason ?? "");
    p.minute.disabled = isOff;
    p.step.disabled = isOff || !due;
    p.step.title = p.step.disabled
      ? isOff
        ? why
        : say("Nothing is due.")
      : say("Goes to the next thing that is due, and no further");
    p.end.disabled = why !== "";
    p.end.title = why || say("Goes to shortly before the music stops");
    const reasons = [why, isOff || due ? "" : say("Nothing is due.")].filter(Boolean).join(" ");
    setText(p.end.querySelector("span"), label);
    setText(p.reason, reasons);
  }

  #show() {
    const { speed, paused } = this.#state.clock;
    const p = this.#parts;
    const index = speedIndex(speed);
    if (!p.speed.matches(":active")) p.speed.value = index;
    p.speed.style.setProperty("--part", index / (speeds.length - 1));
    p.speed.setAttribute("aria-valuetext", say("{speed} times", { speed }));
    p.name.textContent = [`${speed}×`, words[speed]].filter(Boolean).join(" · ");
    p.pause.replaceChildren(icon(paused ? "play" : "pause"));
    p.pause.setAttribute("aria-label", paused ? say("Let time run") : say("Stop time"));
    byId("panel-time").classList.toggle("stands", paused);
    this.#tick();
  }

  #tick() {
    const wall = this.#state.wall();
    const p = this.#parts;
    const [time, seconds] = clockAsIn(this.#state.setup.locale, wall);
    setText(p.time, time);
    setText(p.seconds, seconds);
    setText(p.date, clockDate(wall));
    setText(
      p.uptime,
      this.#state.clock.paused
        ? say("Time stands still")
        : say("Running for {time}", { time: duration(this.#state.uptime()) }),
    );
    this.#showWayToEnd();
    this.#night.show();
  }
}
