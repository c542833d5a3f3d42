// What becomes of the host: a card over the phone when it is busy for long, does not answer, has
// crashed, or runs without its extensions.
import { perform } from "../server/commands.js";
import { post } from "../server/requests.js";
import { h } from "../ui/dom.js";
import { duration } from "../ui/format.js";
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
  #card = h("section", { class: "life", id: "life", role: "status", "aria-label": "The host" });

  constructor(state, place) {
    this.#state = state;
    place.append(this.#card);
    for (const name of ["life", "snapshot"]) state.on(name, () => this.#show());
  }

  async #whereIsIt() {
    const answer = await ask("sample");
    if (!answer) return;
    this.#card.querySelector("details")?.remove();
    this.#card.append(list("What it is doing", answer.stack));
    this.#card.querySelector("details").open = true;
  }

  #hanging(doing) {
    return [
      h("p", { class: "life-title", text: "The home screen does not answer" }),
      h("p", { text: doing ? `It is at “${doing}”. Wait, or end it.` : "Wait, or end it." }),
      h(
        "div",
        { class: "life-choices" },
        button("Kill it", () => ask("kill")),
        button("What is it doing?", () => this.#whereIsIt()),
      ),
    ];
  }

  #busy({ doing, uptime }) {
    const reached = uptime === null ? "" : ` It is ${duration(uptime)} on the phone.`;
    return [
      h("p", { class: "life-title", text: "At work" }),
      h("p", { text: `“${doing}” takes its time.${reached}` }),
      h("div", { class: "life-choices" }, button("Stop it", () => ask("interrupt"))),
    ];
  }

  #crashed({ what, where, ran, stack, journal }) {
    const place = where ? ` in ${where}` : "";
    return [
      h("p", { class: "life-title", text: "The home screen crashed" }),
      h("p", { text: `${what}${place}, after it had run for ${duration(ran)}.` }),
      list("Stack", stack),
      list("The journal's last lines", journal),
      h("div", { class: "life-choices" }, button("Close", () => ask("forget"))),
    ];
  }

  #content() {
    const { life } = this.#state;
    if (life.state === "hanging") return this.#hanging(life.doing);
    if (life.state === "busy") return this.#busy(life);
    const again = button("Try again", () => perform("respring"));
    const safe = life.safeMode
      ? [
          h("p", { class: "life-title", text: "Safe mode: without extensions" }),
          h("p", { text: "The home screen died again within ten seconds." }),
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
