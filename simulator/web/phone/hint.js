// One sentence below the phone: what the sleep timer will do, or is doing. Whoever is here for the
// first time is led to the moon; once a timer has been set that is over for good.
import { night } from "../time/night.js";
import { byId, h, setText } from "../ui/dom.js";
import { say } from "../ui/language.js";
import { announce } from "../ui/toast.js";

const key = "dozewell.found";
const started = 'post "DozewellDidStartNotification"';
const countedEvery = 250; // milliseconds
const stops = /^-\[SBMediaController pause/; // nobody but the extension calls it
const goesOn = /^player (play|track) |^post "DozewellDidStartNotification"/;

export class Hint {
  #state;
  #screen;
  #text = h("span", { class: "hint-text" });
  #more = h("small", { class: "hint-more" });
  #place = byId("hint");
  #isFirst = false; // timer of this person
  #hasStopped = false; // the music, by a timer; nothing has played since

  constructor(state, screen) {
    this.#state = state;
    this.#screen = screen;
    this.#place.append(this.#text, this.#more);
    state.on("journal", (event) => this.#hear(event));
    for (const name of ["snapshot", "phone", "script", "timer", "player", "clock"])
      state.on(name, () => this.#show());
    screen.addEventListener("change", () => this.#show());
    setInterval(() => this.#show(), countedEvery);
  }

  #hear({ detail, whole }) {
    const { journal } = this.#state;
    const last = journal.findLast(({ text }) => stops.test(text) || goesOn.test(text));
    const hasStopped = last !== undefined && stops.test(last.text);
    if (hasStopped && !this.#hasStopped && !whole)
      announce(say("The music has stopped. Good night."));
    this.#hasStopped = hasStopped;
    if (!whole && detail.some(({ text }) => text.startsWith(started))) this.#timerWasSet();
    this.#show();
  }

  #timerWasSet() {
    this.#isFirst ||= !localStorage.getItem(key);
    localStorage.setItem(key, "yes");
    announce(say("The timer is set."));
  }

  #timer() {
    const told = this.#state.phone.host === "running" ? night(this.#state) : null;
    if (!told) return null;
    const more = [told.more];
    if (!this.#state.phone.screenOn) more.push(say("Tap the phone to light its screen."));
    else if (this.#isFirst && !this.#state.timer.fades)
      more.push(say("Move time forward to see and hear it."));
    return { text: told.text, more: more.join(" ").trim() };
  }

  #sentence() {
    const { host, screenOn, locked } = this.#state.phone;
    if (host === "off")
      return this.#state.script
        ? say("This phone waits for its script: play a line, or all.")
        : say("This phone is off. Switch it on.");
    if (host === "dead") return say("The home screen has died. Start it again.");
    if (this.#hasStopped && !this.#state.player?.playing)
      return say("The music has stopped. Good night.");
    if (!screenOn) return say("Tap the phone to light its screen.");
    if (localStorage.getItem(key)) return "";
    if (this.#screen.shows("ChooseSnoozeTimeView"))
      return say("Choose how long the music may play, then confirm.");
    if (this.#screen.shows("OnTimerEndsSettingsView"))
      return say(
        "Choose what else happens. The hourglass turns from the timer's start to its end.",
      );
    if (this.#screen.shows("DozewellButton"))
      return say("The moon beside the song is the sleep timer. Tap it.");
    if (locked) return say("Unlock the phone: press its side key.");
    return say("Open Control Center to find the moon: pull down from the upper right corner.");
  }

  #show() {
    const timer = this.#timer();
    const { text, more } = timer ?? { text: this.#sentence(), more: "" };
    this.#place.classList.toggle("timer", timer !== null);
    this.#place.classList.toggle("done", timer === null && this.#hasStopped);
    setText(this.#text, text);
    setText(this.#more, more);
  }
}
