// What a hand does to the phone: the side keys, and a bar of everything else.
import { perform, run } from "../server/commands.js";
import { h } from "../ui/dom.js";
import { icon } from "../ui/icons.js";
import { say } from "../ui/language.js";
import { toast } from "../ui/toast.js";

const nextTurn = {
  portrait: "landscape-left",
  "landscape-left": "upside-down",
  "upside-down": "landscape-right",
  "landscape-right": "portrait",
};

export class Device {
  #state;
  #screen;
  keys = [];
  #buttons = new Map(); // by name

  constructor(state, screen, place) {
    this.#state = state;
    this.#screen = screen;
    this.keys = [
      this.#key("lock-key", say("Lock"), () => this.#lock()),
      this.#key("up-key", say("Volume up"), () => perform("volume-up")),
      this.#key("down-key", say("Volume down"), () => perform("volume-down")),
    ];
    place.append(...this.#makeButtons(), this.#makeMore());
    for (const name of ["phone", "snapshot"]) state.on(name, () => this.#show());
    screen.addEventListener("change", () => this.#show());
  }

  #key(name, label, press) {
    return h("button", {
      class: `side-key ${name}`,
      type: "button",
      "aria-label": label,
      title: label,
      onclick: press,
    });
  }

  #button(name, label, press) {
    const button = h(
      "button",
      {
        class: "device-button",
        id: `device-${name}`,
        type: "button",
        title: label,
        onclick: press,
      },
      icon(name),
      h("span", { text: label }),
    );
    this.#buttons.set(name, button);
    return button;
  }

  #makeButtons() {
    return [
      this.#button("controls", say("Control Center"), () => this.#controlCenter()),
      this.#button("lock", say("Lock"), () => this.#lock()),
      this.#button("home", say("Home"), () => this.home()),
      this.#button("screen", say("Screen"), () =>
        perform(`screen ${this.#state.phone.screenOn ? "off" : "on"}`),
      ),
      this.#button("shake", say("Shake"), () => this.#shake()),
      this.#button("rotate", say("Rotate"), () =>
        perform(`rotate ${nextTurn[this.#state.phone.orientation] ?? "portrait"}`),
      ),
      this.#button("headphones", say("Headphones away"), () => perform("bluetooth none")),
    ];
  }

  #makeMore() {
    const respring = this.#button("respring", say("Respring"), () =>
      perform(this.#state.phone.host === "off" ? "boot" : "respring"),
    );
    const kill = this.#button("kill", say("Kill"), () => perform("kill"));
    respring.title = say("Restarts the home screen in order");
    kill.title = say("The home screen dies at once, without an orderly end");
    return h("div", { class: "device-rare" }, respring, kill);
  }

  get controlCenterIsOpen() {
    return this.#state.phone.controlCenter === true;
  }

  // What leads out of whatever is open, as a swipe up from the lower edge does; null where that is
  // the home screen.
  get #wayHome() {
    const { locked, settings } = this.#state.phone;
    if (this.controlCenterIsOpen) return () => perform("control-center close");
    if (locked) return () => perform("unlock");
    if (settings) return () => perform("settings close");
    return this.#screen.shows("_SBHomeBar") ? () => this.#tapHomeBar() : null;
  }

  home() {
    this.#wayHome?.();
  }

  // One level back, where no button of the screen leads there.
  back() {
    if (this.controlCenterIsOpen) perform("control-center close");
    else if (this.#state.phone.settings) perform("settings back");
    else if (!this.#state.phone.locked) this.home();
  }

  #tapHomeBar() {
    const { width, height } = this.#screen.size;
    const place = `${width / 2} ${height - 12}`;
    perform(`touch began ${place}`, `touch ended ${place}`);
  }

  #controlCenter() {
    perform(`control-center ${this.controlCenterIsOpen ? "close" : "open"}`);
  }

  #lock() {
    perform(this.#state.phone.locked ? "unlock" : "lock");
  }

  async #shake() {
    const handset = document.getElementById("handset");
    handset.classList.remove("shaken");
    requestAnimationFrame(() => handset.classList.add("shaken"));
    await run("shake").catch((error) => toast(error.message, "problem"));
  }

  #rename(name, label, picture = name) {
    const button = this.#buttons.get(name);
    if (button.dataset.label === label) return;
    button.dataset.label = label;
    button.title = label;
    button.replaceChildren(icon(picture), h("span", { text: label }));
  }

  // Who cannot press it reads why.
  #explain(name, why) {
    const button = this.#buttons.get(name);
    button.disabled = why !== "";
    button.title = why || button.textContent;
  }

  #show() {
    const { locked, screenOn, host, peers } = this.#state.phone;
    this.#rename("lock", locked ? say("Unlock") : say("Lock"), locked ? "unlock" : "lock");
    this.#rename("screen", screenOn ? say("Screen off") : say("Screen on"));
    const starts = {
      running: say("Respring"),
      dead: say("Start again"),
      off: say("Switch on"),
    };
    this.#rename("respring", starts[host]);
    for (const [name, button] of this.#buttons)
      button.disabled = host !== "running" && !["respring", "headphones"].includes(name);
    if (host === "running")
      this.#explain("home", this.#wayHome ? "" : say("The home screen is in front already."));
    this.#explain("headphones", peers ? "" : say("No headphones are connected."));
    this.#buttons.get("controls").setAttribute("aria-pressed", String(this.controlCenterIsOpen));
  }
}
