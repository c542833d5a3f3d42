// One sentence below the phone for who is here for the first time. It follows what is done and is
// gone for good once a timer has been set.
import { announce } from "../ui/toast.js";
import { byId } from "../ui/dom.js";

const key = "dozewell.found";
const started = /^post "DozewellDidStartNotification"/;

export class Hint {
  #state;
  #screen;
  #place = byId("hint");

  constructor(state, screen) {
    this.#state = state;
    this.#screen = screen;
    if (localStorage.getItem(key)) return;
    state.on("journal", (event) => this.#hear(event));
    screen.addEventListener("change", () => this.#show());
    state.on("snapshot", () => this.#show());
  }

  #hear(event) {
    if (event.whole || !event.detail.some((entry) => started.test(entry.text))) return;
    localStorage.setItem(key, "yes");
    this.#place.textContent = "The timer is set. Move time forward and listen: the music fades, then stops.";
    this.#place.classList.add("done");
    announce("Timer set");
  }

  #sentence() {
    if (this.#state.phone.host === "off") return "This phone is off. Switch it on.";
    if (this.#state.phone.host === "dead") return "The home screen has died. Start it again.";
    if (!this.#state.phone.screenOn) return "Tap the phone to light its screen.";
    if (this.#state.phone.locked) return "Unlock the phone: press its side key.";
    if (this.#screen.shows("ChooseSnoozeTimeView")) return "Choose how long the music may play, then confirm.";
    if (this.#screen.shows("DozewellButton")) return "The moon beside the song is the sleep timer. Tap it.";
    return "Open Control Center to find the moon: pull down from the upper right corner.";
  }

  #show() {
    if (localStorage.getItem(key)) return;
    const sentence = this.#sentence();
    if (this.#place.textContent !== sentence) this.#place.textContent = sentence;
  }
}
