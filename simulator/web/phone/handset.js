// The phone's body: bezel, screen and side keys, scaled to the room there is and turned as the
// phone is held.
import { h } from "../ui/dom.js";

const bezel = 13; // points around the screen
const key = 4; // how far keys stick out
const standardBrightness = 0.5;
const darkest = 0.7; // opacity of the darkness over it: what is there can still be found
const brightest = 0.15;
const upright = { width: 390 + 2 * bezel + 2 * key, height: 844 + 2 * bezel };

// How far the phone is turned clockwise. The names say where the interface's lower edge, the
// phone's own one, has gone.
const turns = { portrait: 0, "landscape-left": 90, "upside-down": 180, "landscape-right": -90 };

export class Handset {
  #state;
  #stand;
  #body;
  #box;
  #screen;
  #light = h("div", { class: "light", "aria-hidden": "true" });
  glass;
  turn = 0; // degrees
  #zoom = null; // null: as large as there is room for

  constructor(state, stand, screen, device) {
    this.#state = state;
    this.#stand = stand;
    this.#screen = screen;
    this.glass = h(
      "div",
      { class: "glass", id: "glass", dir: "ltr" },
      screen.element,
      h("div", { class: "island", "aria-hidden": "true" }),
      this.#light,
      h("div", { class: "dark", "aria-hidden": "true" }),
    );
    this.#body = h(
      "div",
      { class: "handset", id: "handset" },
      ...device.keys,
      h("div", { class: "shell", "aria-hidden": "true" }),
      this.glass,
    );
    this.#box = h("div", { class: "handset-box" }, this.#body);
    stand.append(this.#box);
    new ResizeObserver(() => this.#fit()).observe(stand);
    state.on("snapshot", () => requestAnimationFrame(() => this.#box.classList.add("seen")));
    for (const name of ["phone", "snapshot"]) state.on(name, () => this.#show());
    for (const name of ["setup", "snapshot"]) state.on(name, () => this.#speak());
    screen.addEventListener("change", () => this.#turnContent());
    this.#show();
  }

  get #sideways() {
    return Math.abs(this.turn) === 90;
  }

  #show() {
    const { orientation, screenOn, host, brightness } = this.#state.phone;
    this.turn = turns[orientation] ?? 0;
    document.body.classList.toggle("sideways", this.#sideways);
    this.#body.classList.toggle("off", !screenOn || host !== "running");
    this.#illuminate(brightness);
    this.#fit();
    this.#turnContent();
  }

  // The screen is drawn as bright as a phone begins; a layer over it is what differs from that.
  #illuminate(brightness) {
    const { style } = this.#light;
    style.background = brightness < standardBrightness ? "#000" : "#fff";
    const difference = Math.abs(brightness - standardBrightness) / standardBrightness;
    style.opacity = difference * (brightness < standardBrightness ? darkest : brightest);
  }

  // The phone's language is not the page's.
  #speak() {
    const words = this.#state.setup.lines.map((line) => line.split(" "));
    const spoken = words.find(([command]) => command === "locale")?.[1] ?? "en_US";
    this.glass.lang = spoken.replaceAll('"', "").replace("_", "-");
  }

  // How many pixels a point is; null: as many as fit.
  set zoom(scale) {
    this.#zoom = scale;
    this.#stand.classList.toggle("zoomed", scale !== null);
    this.#fit();
  }

  #fit() {
    const width = this.#sideways ? upright.height : upright.width;
    const height = this.#sideways ? upright.width : upright.height;
    const room = this.#stand.getBoundingClientRect();
    const fitting = Math.max(0.2, Math.min(1.15, room.width / width, room.height / height));
    const scale = this.#zoom ?? fitting;
    this.#body.style.setProperty("--scale", scale);
    this.#body.style.setProperty("--turn", `${this.turn}deg`);
    this.#box.style.width = `${width * scale}px`;
    this.#box.style.height = `${height * scale}px`;
  }

  // The scene comes as the interface is turned, the glass is turned with the phone.
  #turnContent() {
    const { width, height } = this.#screen.size;
    const { style } = this.#screen.element;
    style.width = `${width}px`;
    style.height = `${height}px`;
    const turned = width > height ? this.turn || 90 : this.turn === 180 ? 180 : 0;
    style.transform = `translate(-50%, -50%) rotate(${-turned}deg)`;
  }

  get size() {
    return this.#screen.size;
  }

  // A point of the interface, in its points, for one of the browser's window.
  pointAt(clientX, clientY) {
    const box = this.#screen.element.getBoundingClientRect();
    const { width, height } = this.#screen.size;
    return {
      x: ((clientX - box.left) / box.width) * width,
      y: ((clientY - box.top) / box.height) * height,
    };
  }
}
