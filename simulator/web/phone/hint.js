// One sentence below the phone. Whoever is here for the first time is led to the moon by it; once a
// timer has been set that is over for good, and it only says what the phone waits for.
import { announce } from "../ui/toast.js";
import { byId } from "../ui/dom.js";
import { say } from "../ui/language.js";

const key = "dozewell.found";
const started = 'post "DozewellDidStartNotification"';
const stopped = 'post "DozewellDidStopNotification"';
const paused = "-[SBMediaController pause";

export class Hint {
  #state;
  #screen;
  #place = byId("hint");
  #hasStopped = false;
  #news = ""; // of the timer that was set while this page was open

  constructor(state, screen) {
    this.#state = state;
    this.#screen = screen;
    state.on("journal", (event) => !event.whole && this.#hear(event.detail));
    for (const name of ["phone", "script", "snapshot"]) state.on(name, () => this.#show());
    screen.addEventListener("change", () => this.#show());
  }

  #hear(entries) {
    for (const { text } of entries) {
      if (text.startsWith(started)) this.#timerWasSet();
      else if (text.startsWith(paused)) this.#musicHasStopped();
      else if (text.startsWith(stopped) && !this.#hasStopped) this.#news = "";
    }
    this.#show();
  }

  #musicHasStopped() {
    this.#tell(say("The music has stopped. Good night."));
    this.#hasStopped = true;
  }

  #timerWasSet() {
    const first = !localStorage.getItem(key);
    localStorage.setItem(key, "yes");
    this.#tell(
      first
        ? say("The timer is set. Move time forward and listen: the music fades, then stops.")
        : say("The timer is set."),
    );
  }

  #tell(news) {
    this.#news = news;
    this.#hasStopped = false;
    announce(news);
  }

  #sentence() {
    const { host, screenOn, locked } = this.#state.phone;
    if (host === "off")
      return this.#state.script
        ? say("This phone waits for its script: play a line, or all.")
        : say("This phone is off. Switch it on.");
    if (host === "dead") return say("The home screen has died. Start it again.");
    if (!screenOn) return say("Tap the phone to light its screen.");
    if (this.#news || localStorage.getItem(key)) return this.#news;
    if (locked) return say("Unlock the phone: press its side key.");
    if (this.#screen.shows("ChooseSnoozeTimeView"))
      return say("Choose how long the music may play, then confirm.");
    if (this.#screen.shows("OnTimerEndsSettingsView"))
      return say(
        "Choose what else happens. The hourglass turns from the timer's start to its end.",
      );
    if (this.#screen.shows("DozewellButton"))
      return say("The moon beside the song is the sleep timer. Tap it.");
    return say("Open Control Center to find the moon: pull down from the upper right corner.");
  }

  #show() {
    const sentence = this.#sentence();
    this.#place.classList.toggle("done", sentence !== "" && sentence === this.#news);
    if (this.#place.textContent !== sentence) this.#place.textContent = sentence;
  }
}
