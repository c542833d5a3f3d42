// What a hand does to the phone: the side keys, and a bar of everything else.
import { perform, run } from "../server/commands.js";
import { read } from "../server/requests.js";
import { h } from "../ui/dom.js";
import { icon } from "../ui/icons.js";
import { toast } from "../ui/toast.js";

const nextTurn = {
  portrait: "landscape-left",
  "landscape-left": "upside-down",
  "upside-down": "landscape-right",
  "landscape-right": "portrait",
};

export class Device {
  #state;
  keys = [];
  #buttons = new Map(); // name -> {button, command}

  constructor(state, screen, place) {
    this.#state = state;
    this.keys = [
      this.#key("lock-key", "Lock", () => this.#lock()),
      this.#key("up-key", "Volume up", () => perform("volume-up")),
      this.#key("down-key", "Volume down", () => perform("volume-down")),
    ];
    place.append(...this.#makeButtons(), this.#makeMore());
    for (const name of ["phone", "snapshot"]) state.on(name, () => this.#show());
    screen.addEventListener("change", () => this.#show());
    this.#learn();
  }

  // Leaves out what this phone's language has no word for.
  async #learn() {
    try {
      const known = new Set((await read("api/commands")).map((command) => command.name));
      for (const { button, command } of this.#buttons.values()) button.hidden = !known.has(command);
    } catch (error) {
      toast(error.message, "problem");
    }
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

  #button(name, label, command, press) {
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
    this.#buttons.set(name, { button, command });
    return button;
  }

  #makeButtons() {
    return [
      this.#button("controls", "Control Center", "control-center", () => this.#controlCenter()),
      this.#button("lock", "Lock", "lock", () => this.#lock()),
      this.#button("home", "Home", "control-center", () => this.home()),
      this.#button("screen", "Screen", "screen", () =>
        perform(`screen ${this.#state.phone.screenOn ? "off" : "on"}`),
      ),
      this.#button("shake", "Shake", "shake", () => this.#shake()),
      this.#button("rotate", "Rotate", "rotate", () =>
        perform(`rotate ${nextTurn[this.#state.phone.orientation] ?? "portrait"}`),
      ),
      this.#button("headphones", "Headphones away", "bluetooth", () => perform("bluetooth none")),
    ];
  }

  #makeMore() {
    const respring = this.#button("respring", "Respring", "respring", () =>
      perform(this.#state.phone.host === "off" ? "boot" : "respring"),
    );
    const kill = this.#button("kill", "Kill", "kill", () => perform("kill"));
    respring.title = "Restarts the home screen in order";
    kill.title = "The home screen dies at once, without an orderly end";
    return h("div", { class: "device-rare" }, respring, kill);
  }

  get controlCenterIsOpen() {
    return this.#state.phone.controlCenter === true;
  }

  // Out of whatever is open, as a swipe up from the lower edge.
  home() {
    if (this.controlCenterIsOpen) perform("control-center close");
    else if (this.#state.phone.locked) perform("unlock");
    else if (this.#state.phone.settings) perform("settings close");
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
    const { button } = this.#buttons.get(name);
    if (button.dataset.label === label) return;
    button.dataset.label = label;
    button.title = label;
    button.replaceChildren(icon(picture), h("span", { text: label }));
  }

  #show() {
    const { locked, screenOn, host } = this.#state.phone;
    this.#rename("lock", locked ? "Unlock" : "Lock", locked ? "unlock" : "lock");
    this.#rename("screen", screenOn ? "Screen off" : "Screen on");
    this.#rename("respring", { running: "Respring", dead: "Start again", off: "Switch on" }[host]);
    for (const [name, { button }] of this.#buttons)
      button.disabled = host !== "running" && !["respring", "headphones"].includes(name);
    this.#buttons
      .get("controls")
      .button.setAttribute("aria-pressed", String(this.controlCenterIsOpen));
  }
}
