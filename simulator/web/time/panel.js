// The phone's clock and how fast it goes: from life's own pace to an hour in a second.
import { post } from "../server/requests.js";
import { byId, h } from "../ui/dom.js";
import { clockDate, clockSeconds, clockTime, duration } from "../ui/format.js";
import { icon } from "../ui/icons.js";
import { toast } from "../ui/toast.js";

const speeds = [1, 2, 5, 10, 30, 60, 120, 300, 600, 1800, 3600];
const words = { 1: "as in life", 60: "a minute in a second", 3600: "an hour in a second" };

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

  constructor(state) {
    this.#state = state;
    byId("panel-time").append(this.#makeClock(), this.#makeSpeed(), this.#makeJumps());
    for (const name of ["clock", "snapshot"]) state.on(name, () => this.#show());
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
      "aria-label": "Speed of time",
      oninput: () => this.#ask({ speed: speeds[Number(p.speed.value)] }),
    });
    p.name = h("output", { class: "speed-name", for: "speed" });
    return h(
      "div",
      { class: "speed-line" },
      h("div", { class: "speed-words" }, h("span", { text: "Speed" }), p.name),
      p.speed,
      h(
        "div",
        { class: "speed-marks", "aria-hidden": "true" },
        ...["1×", "60×", "3600×"].map((text) => h("span", { text })),
      ),
    );
  }

  #makeJumps() {
    return h(
      "div",
      { class: "jumps" },
      this.#jump(
        "time-step",
        "step",
        "Next event",
        { step: true },
        "Goes to the next thing that is due, and no further",
      ),
      this.#jump("time-minute", "time", "+1 min", { advance: 60 }, "Lets a minute pass at once"),
      this.#jump(
        "time-end",
        "end",
        "10 s before the end",
        { beforeEnd: 10 },
        "Goes to ten seconds before the timer runs out",
      ),
    );
  }

  #jump(id, name, text, wish, title) {
    return h(
      "button",
      { class: "soft", id, type: "button", title, onclick: () => this.#ask(wish) },
      icon(name),
      h("span", { text }),
    );
  }

  #show() {
    const { speed, paused } = this.#state.clock;
    const p = this.#parts;
    const index = speedIndex(speed);
    if (!p.speed.matches(":active")) p.speed.value = index;
    p.speed.style.setProperty("--part", index / (speeds.length - 1));
    p.speed.setAttribute("aria-valuetext", `${speed} times`);
    p.name.textContent = [`${speed}×`, words[speed]].filter(Boolean).join(" · ");
    p.pause.replaceChildren(icon(paused ? "play" : "pause"));
    p.pause.setAttribute("aria-label", paused ? "Let time run" : "Stop time");
    byId("panel-time").classList.toggle("stands", paused);
    this.#tick();
  }

  #tick() {
    const wall = this.#state.wall();
    const p = this.#parts;
    p.time.textContent = clockTime(wall);
    p.seconds.textContent = clockSeconds(wall);
    p.date.textContent = clockDate(wall);
    p.uptime.textContent = this.#state.clock.paused
      ? "Time stands still"
      : `Running for ${duration(this.#state.uptime())}`;
  }
}
