// Invites to bring music along where there is none, and takes what is dropped or chosen.
import { h } from "../ui/dom.js";
import { icon } from "../ui/icons.js";
import { say } from "../ui/language.js";
import { toast } from "../ui/toast.js";
import { isMusic, localMusic } from "./local.js";

// True when there was music among the files.
export async function takeMusic(files) {
  const music = files.filter(isMusic);
  if (music.length === 0) return false;
  const unread = await localMusic.add(music);
  if (unread.length > 0)
    toast(say("Your browser cannot play {names}.", { names: unread.join(", ") }), "problem");
  return true;
}

export class Invitation {
  #words = h("p", {
    text: say(
      "There is no music yet. Drop files anywhere on this page, or choose a folder. They are " +
        "played from this page's memory, and never leave it.",
    ),
  });
  element = h(
    "div",
    { class: "invitation" },
    this.#words,
    ...this.#chooser("choose-music", say("Choose files"), { accept: "audio/*", multiple: true }),
    ...this.#chooser("choose-folder", say("Choose a folder"), { webkitdirectory: true }),
  );

  #chooser(id, label, what) {
    const input = h("input", {
      type: "file",
      class: "visually-hidden",
      id,
      tabindex: -1,
      "aria-label": label,
      onchange: () => this.#take(input),
      ...what,
    });
    const button = h(
      "button",
      { class: "soft", type: "button", onclick: () => input.click() },
      icon("open"),
      h("span", { text: label }),
    );
    return [input, button];
  }

  async #take(input) {
    const files = [...input.files];
    input.value = "";
    if (files.length > 0 && !(await takeMusic(files))) toast(say("There is no music in it."));
  }

  show(isEmpty) {
    this.#words.hidden = !isEmpty;
    this.element.classList.toggle("inviting", isEmpty);
  }
}
