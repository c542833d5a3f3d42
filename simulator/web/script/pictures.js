// The pictures that commands such as `snapshot` have written at the server, to be saved from there.
import { h } from "../ui/dom.js";
import { icon } from "../ui/icons.js";
import { say } from "../ui/language.js";

export class Pictures {
  #list = h("ol", { id: "script-pictures", "aria-labelledby": "script-pictures-name" });
  #links = new Map(); // name -> link, in the order of the server

  constructor(state) {
    this.element = h(
      "div",
      { class: "pictures", hidden: true },
      h("h3", { id: "script-pictures-name", text: say("Pictures") }),
      this.#list,
    );
    state.on("pictures", (event) => this.#show(event.detail));
  }

  // They come in the order in which they were first written; the newest is shown first. As long as
  // there are only more of them the links stay, and so does the focus in one.
  #show(pictures) {
    const shown = [...this.#links.keys()];
    if (shown.some((name, index) => name !== pictures[index]?.name)) this.#forget();
    for (const { name, n } of pictures)
      this.#link(name).href = `api/picture?file=${encodeURIComponent(name)}&n=${n}`;
    this.element.hidden = pictures.length === 0;
  }

  #forget() {
    this.#links.clear();
    this.#list.replaceChildren();
  }

  #link(name) {
    if (this.#links.has(name)) return this.#links.get(name);
    const link = h(
      "a",
      { class: "soft", download: name.split("/").at(-1), title: say("Save {name}", { name }) },
      icon("download"),
      h("span", { text: name }),
    );
    this.#links.set(name, link);
    this.#list.prepend(h("li", {}, link));
    return link;
  }
}
