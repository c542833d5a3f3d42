// One level back, as Escape has it: out of an alert, a page of the panel, the panel, Control
// Center, a page of Settings. What is there is known by its classes: labels are in the phone's
// language.
import { perform } from "../server/commands.js";
import { alertKind } from "./accessibility.js";

const pages = ["OnTimerEndsSettingsView", "ChooseSnoozeTimeView", "CurrentTimerView"];
const beside = 8; // points from the screen's left edge: no module is there
const notSeen = "[inert], [aria-hidden=true].node";

const buttonsIn = (element) => [...element.querySelectorAll('[data-role="button"]')];
const weight = (button) =>
  Math.max(0, ...[...button.querySelectorAll("svg.text")].map((each) => each.style.fontWeight));

// The button that cancels is the bold one; else the last.
function cancels(alert) {
  return buttonsIn(alert).reduce((best, each) => (weight(each) >= weight(best) ? each : best));
}

export class Levels {
  #handset;
  #device;
  #press;

  // `press` has a finger come down on an element.
  constructor(handset, device, press) {
    this.#handset = handset;
    this.#device = device;
    this.#press = press;
  }

  #seen(kind) {
    const found = this.#handset.glass.querySelectorAll(`[data-kind="${kind}"]`);
    return [...found].findLast((each) => !each.closest(notSeen));
  }

  // The button that leads back: of an alert, or the first of a page.
  #button() {
    const alert = this.#seen(alertKind);
    if (alert) return buttonsIn(alert).length > 0 ? cancels(alert) : null;
    // A page that is leaving has none any more.
    const back = '[data-kind="UIButton"][data-role="button"]';
    return pages.map((kind) => this.#seen(kind)?.querySelector(back)).find((each) => each);
  }

  #moduleIsOpen() {
    const module = this.#seen("MRUNowPlayingView");
    return module && parseFloat(module.style.width) > this.#handset.size.width / 2;
  }

  back() {
    const button = this.#button();
    if (button) return this.#press(button);
    if (this.#device.controlCenterIsOpen && this.#moduleIsOpen()) {
      const place = `${beside} ${(this.#handset.size.height / 2).toFixed(1)}`;
      return perform(`touch began ${place}`, `touch ended ${place}`);
    }
    this.#device.back();
  }
}
