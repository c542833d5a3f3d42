// What becomes of the host: a card over the phone when it is busy for long, does not answer, has
// crashed, or runs without its extensions.
import { perform } from "../server/commands.js";
import { post } from "../server/requests.js";
import { h } from "../ui/dom.js";
import { duration } from "../ui/format.js";
import { say } from "../ui/language.js";
import { toast } from "../ui/toast.js";

const ask = (what) =>
  post("api/life", { do: what }).catch((error) => toast(error.message, "problem"));

const button = (label, press) =>
  h("button", { class: "quiet", type: "button", text: label, onclick: press });

const list = (label, lines) =>
  lines.length === 0
    ? null
    : h("details", {}, h("summary", { text: label }), h("pre", { text: lines.join("\n") }));

export class Life {
  #state;
  #card = h("section", {
    class: "life",
    id: "life",
    role: "status",
    "aria-label": say("The host"),
  });

  constructor(state, place) {
    this.#state = state;
    place.append(this.#card);
    for (const name of ["life", "snapshot"]) state.on(name, () => this.#show());
  }

  async #whereIsIt() {
    const answer = await ask("sample");
    if (!answer) return;
    this.#card.querySelector("details")?.remove();
    this.#card.append(list(say("What it is doing"), answer.stack));
    this.#card.querySelector("details").open = true;
  }

  #hanging(doing) {
    return [
      h("p", { class: "life-title", text: say("The home screen does not answer") }),
      h("p", {
        text: doing
          ? say("It is at “{doing}”. Wait, or end it.", { doing })
          : say("Wait, or end it."),
      }),
      h(
        "div",
        { class: "life-choices" },
        button(say("Kill it"), () => ask("kill")),
        button(say("What is it doing?"), () => this.#whereIsIt()),
      ),
    ];
  }

  #busy({ doing, uptime }) {
    const reached =
      uptime === null ? "" : say("It is {time} on the phone.", { time: duration(uptime) });
    return [
      h("p", { class: "life-title", text: say("At work") }),
      h("p", { text: `${say("“{doing}” takes its time.", { doing })} ${reached}` }),
      h(
        "div",
        { class: "life-choices" },
        button(say("Stop it"), () => ask("interrupt")),
      ),
    ];
  }

  #crashed({ what, where, ran, stack, journal }) {
    const values = { what, where, time: duration(ran) };
    const told = where
      ? say("{what} in {where}, after it had run for {time}.", values)
      : say("{what}, after it had run for {time}.", values);
    return [
      h("p", { class: "life-title", text: say("The home screen crashed") }),
      h("p", { text: told }),
      list(say("Stack"), stack),
      list(say("The journal's last lines"), journal),
      h(
        "div",
        { class: "life-choices" },
        button(say("Close"), () => ask("forget")),
      ),
    ];
  }

  #content() {
    const { life } = this.#state;
    if (life.state === "hanging") return this.#hanging(life.doing);
    if (life.state === "busy") return this.#busy(life);
    const again = button(say("Try again"), () => perform("respring"));
    const safe = life.safeMode
      ? [
          h("p", { class: "life-title", text: say("Safe mode: without extensions") }),
          h("p", { text: say("The home screen died again within ten seconds.") }),
          h("div", { class: "life-choices" }, again),
        ]
      : [];
    return [...(life.report ? this.#crashed(life.report) : []), ...safe];
  }

  #show() {
    const content = this.#content().filter((each) => each !== null);
    this.#card.hidden = content.length === 0;
    this.#card.replaceChildren(...content);
  }
}
