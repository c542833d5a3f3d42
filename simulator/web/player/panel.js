// What plays, and the list of all that could.
import { read } from "../server/requests.js";
import { perform } from "../server/commands.js";
import { byId, h, setText } from "../ui/dom.js";
import { duration } from "../ui/format.js";
import { icon } from "../ui/icons.js";
import { say } from "../ui/language.js";
import { toast } from "../ui/toast.js";
import { Invitation } from "./invitation.js";
import { MusicList } from "./list.js";
import { localMusic } from "./local.js";

export class MusicPanel {
  #state;
  #parts = {};
  #list;
  #served = []; // tracks of the server's folder
  #invitation = new Invitation();

  constructor(state) {
    this.#state = state;
    byId("panel-music").append(this.#makePlayer(), this.#makeListPlace());
    this.#list = new MusicList(state, byId("tracks"));
    for (const name of ["player", "phone", "snapshot"]) state.on(name, () => this.#show());
    state.on("clock", () => this.#showPosition()); // jumps
    localMusic.addEventListener("change", () => this.#fill());
    this.#load();
    setInterval(() => this.#showPosition(), 250);
  }

  async #load() {
    try {
      this.#served = await read("music");
      this.#fill();
    } catch (error) {
      toast(error.message, "problem");
    }
  }

  #fill() {
    this.#list.fill([...this.#served, ...localMusic.tracks]);
    this.#invitation.show(this.#list.isEmpty);
    this.#show();
  }

  #button(name, label, line) {
    return h(
      "button",
      {
        class: `round ${name}`,
        type: "button",
        "aria-label": label,
        onclick: () => perform(line()),
      },
      icon(name),
    );
  }

  #makePlayer() {
    const p = this.#parts;
    p.cover = h("div", { class: "cover" }, icon("music"));
    p.title = h("p", { class: "track-title" });
    p.artist = h("p", { class: "track-artist" });
    p.seek = h("input", {
      type: "range",
      class: "seek",
      min: 0,
      max: 1,
      step: 1,
      value: 0,
      "aria-label": say("Position in the track"),
      onchange: () => perform(`seek ${p.seek.value}`),
    });
    p.at = h("span", { class: "at" });
    p.left = h("span", { class: "left" });
    p.toggle = h("button", {
      class: "round toggle",
      id: "play-pause",
      type: "button",
      onclick: () => this.#togglePlaying(),
    });
    p.volume = h("input", {
      type: "range",
      class: "volume",
      id: "volume",
      min: 0,
      max: 1,
      step: 0.01,
      value: 0,
      "aria-label": say("Volume"),
      oninput: () => this.#turn(p.volume.value),
    });
    return h(
      "div",
      { class: "now-playing" },
      h("div", { class: "now-line" }, p.cover, h("div", { class: "now-words" }, p.title, p.artist)),
      h("div", { class: "seek-line" }, p.seek, h("div", { class: "seek-times" }, p.at, p.left)),
      h(
        "div",
        { class: "transport" },
        (p.previous = this.#button("previous", say("Previous track"), () => "previous-track")),
        p.toggle,
        (p.next = this.#button("next", say("Next track"), () => "next-track")),
      ),
      h("label", { class: "volume-line" }, icon("sound"), p.volume),
    );
  }

  #togglePlaying() {
    const { player } = this.#state;
    if (player?.playing) perform("pause");
    else if (player?.title === null && !this.#list.isEmpty) this.#list.play(0);
    else perform("play");
  }

  // Who cannot press them reads why.
  #showTransport(player) {
    const p = this.#parts;
    const isOff = this.#state.phone.host === "off";
    const isIdle = !player || player.title === null;
    const why = isOff ? say("The phone is off.") : isIdle ? say("Nothing is playing") : "";
    for (const button of [p.previous, p.next]) {
      button.disabled = why !== "";
      button.title = why || button.ariaLabel;
    }
    p.toggle.disabled = isOff || (isIdle && this.#list.isEmpty);
    p.toggle.title = p.toggle.disabled ? why : p.toggle.ariaLabel;
    p.volume.disabled = isOff;
  }

  #makeListPlace() {
    return h(
      "div",
      { class: "track-list" },
      h("div", { class: "list-head" }, h("h2", { text: say("Music") }), this.#invitation.element),
      h("ol", { id: "tracks", class: "tracks" }),
    );
  }

  // One request at a time: a slider speaks faster than it matters.
  #turning = false;
  async #turn(level) {
    if (this.#turning) return;
    this.#turning = true;
    await perform(`volume ${level}`);
    this.#turning = false;
    if (document.activeElement === this.#parts.volume && this.#parts.volume.value !== level)
      this.#turn(this.#parts.volume.value);
  }

  #show() {
    const { player } = this.#state;
    const p = this.#parts;
    p.title.textContent = player?.title ?? say("Nothing is playing");
    p.artist.textContent = [player?.artist, player?.album].filter(Boolean).join(" — ");
    p.toggle.replaceChildren(icon(player?.playing ? "pause" : "play"));
    p.toggle.setAttribute("aria-label", player?.playing ? say("Pause") : say("Play"));
    p.seek.max = Math.max(1, Math.floor(player?.length ?? 1));
    p.seek.disabled = !player?.length;
    if (!p.volume.matches(":active")) p.volume.value = player?.volume ?? 0;
    p.volume.style.setProperty("--part", player?.volume ?? 0);
    p.volume.title = player ? say("The sound goes to {route}", { route: player.route }) : "";
    this.#showCover(player?.file ?? null);
    this.#list.show();
    this.#showTransport(player);
    this.#showPosition();
  }

  #showCover(file) {
    const { cover } = this.#parts;
    const known = file !== null && this.#list.hasCover(file);
    const source = known ? `cover/${encodeURIComponent(file)}` : "";
    if (cover.dataset.source === source) return;
    cover.dataset.source = source;
    cover.replaceChildren(known ? h("img", { src: source, alt: "" }) : icon("music"));
  }

  #showPosition() {
    const { player } = this.#state;
    const position = this.#state.position();
    const p = this.#parts;
    const known = position !== null && player?.length;
    if (!p.seek.matches(":active")) p.seek.value = known ? position : 0;
    p.seek.style.setProperty("--part", known ? position / player.length : 0);
    setText(p.at, known ? duration(position) : "");
    // Of whole seconds, so that both turn at once, as on the phone.
    const left = known ? Math.floor(player.length) - Math.floor(position) : 0;
    setText(p.left, known ? `-${duration(left)}` : "");
  }
}
