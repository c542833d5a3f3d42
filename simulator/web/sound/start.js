// "Start listening": browsers make no sound before a person's first gesture. Until then a friendly
// button says so; a click anywhere on the page does as well, but no key: those that look around by
// the keyboard have not asked for sound.
import { post } from "../server/requests.js";
import { perform } from "../server/commands.js";
import { h } from "../ui/dom.js";
import { icon } from "../ui/icons.js";
import { say } from "../ui/language.js";
import { toast } from "../ui/toast.js";
import { cover } from "../ui/veil.js";

const explanations = {
  elsewhere: say("Another page plays the sound."),
  locked: say("Sound is off until you start it."),
  paused: say("Time stands still, and so does the sound."),
  fast: say("No sound while time runs faster than life."),
};

export class SoundStart {
  #state;
  #page;
  #output;
  #follower;
  #place;
  #veil;
  #chip;
  #silent = false; // asked for

  constructor(state, page, output, follower, place, chipPlace) {
    this.#state = state;
    this.#page = page;
    this.#output = output;
    this.#follower = follower;
    this.#veil = this.#makeVeil();
    this.#chip = h("button", {
      class: "chip sound-chip",
      id: "sound-chip",
      type: "button",
      onclick: () => this.#press(),
    });
    this.#place = place;
    place.append(this.#veil);
    cover(place);
    chipPlace.prepend(this.#chip);
    document.addEventListener("pointerup", (event) => this.#allow(event), { capture: true });
    follower.addEventListener("change", () => this.#show());
    this.#show();
  }

  #makeVeil() {
    return h(
      "div",
      { class: "start-veil", id: "start-veil" },
      h(
        "button",
        {
          class: "start-button",
          id: "start-listening",
          type: "button",
          onclick: () => this.#start(),
        },
        icon("sound"),
        h("span", { text: say("Start listening") }),
      ),
      h("p", { text: say("Your browser asks for one click before it makes a sound.") }),
      h("button", {
        class: "quiet",
        id: "start-silent",
        type: "button",
        text: say("Stay silent"),
        onclick: () => this.#staySilent(),
      }),
    );
  }

  #staySilent() {
    this.#silent = true;
    this.#hide();
    this.#show();
  }

  async #allow(event) {
    if (this.#output.allowed || this.#silent || event.target.closest?.("#start-silent")) return;
    const nobody = this.#state.audio.page === null;
    if (!(await this.#output.allow())) return;
    this.#hide();
    if (nobody) await this.#own(false);
    this.#follower.follow();
  }

  async #start() {
    await this.#output.allow();
    this.#hide();
    await this.#own(true);
    if (this.#state.player && !this.#state.player.playing) await perform("play");
  }

  #hide() {
    const hadFocus = this.#veil.contains(document.activeElement);
    this.#veil.hidden = true;
    cover(this.#place);
    if (hadFocus) this.#place.focus({ preventScroll: true });
  }

  async #own(take) {
    try {
      const audio = await post("api/audio-owner", { page: this.#page, ...(take ? { take } : {}) });
      this.#state.take("audio", audio);
    } catch (error) {
      toast(error.message, "problem");
    }
  }

  async #press() {
    this.#silent = false;
    await this.#output.allow();
    if (!this.#follower.owner) return this.#own(true);
    const audio = await post("api/audio-owner", { page: this.#page, release: true });
    this.#state.take("audio", audio);
  }

  #show() {
    const why = this.#follower.silence;
    if (this.#output.allowed && this.#follower.owner) this.#hide();
    const heard = why === null;
    const label = !this.#follower.owner
      ? say("Play sound here")
      : heard
        ? say("Sound is here")
        : explanations[why];
    if (this.#chip.dataset.label === label) return;
    this.#chip.dataset.label = label;
    this.#chip.classList.toggle("on", heard);
    this.#chip.setAttribute("aria-pressed", String(this.#follower.owner));
    this.#chip.replaceChildren(icon(heard ? "sound" : "mute"), h("span", { text: label }));
    this.#chip.title = this.#follower.owner
      ? say("Press to give the sound up")
      : say("This page takes the sound");
  }
}
