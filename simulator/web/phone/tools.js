// How large the phone is shown, a picture of it, and a film of its last half minute.
import { Recent } from "../film/recent.js";
import { run } from "../server/commands.js";
import { h } from "../ui/dom.js";
import { icon } from "../ui/icons.js";
import { say } from "../ui/language.js";
import { toast } from "../ui/toast.js";

const savedWithin = 60_000; // milliseconds

const sizes = [
  ["", say("Fit")],
  ["1", say("100 %")],
  ["2", say("200 %")],
];

// Has the browser save what lies at the address.
export function save(address, name) {
  const link = h("a", { href: address, download: name });
  document.body.append(link);
  link.click();
  link.remove();
}

// "phone-20261123-001500"
export const fileName = () =>
  `phone-${new Date().toISOString().slice(0, 19).replace(/[-:]/g, "").replace("T", "-")}`;

const button = (name, label, press) =>
  h(
    "button",
    {
      class: "round",
      id: `phone-${name}`,
      type: "button",
      title: label,
      "aria-label": label,
      onclick: press,
    },
    icon(name),
  );

export class PhoneTools {
  element;
  #recent;
  #film = button("film", say("Save a film of the last half minute"), () => this.#saveFilm());

  constructor(handset, state) {
    this.#recent = new Recent(state);
    const size = h(
      "select",
      {
        id: "phone-zoom",
        "aria-label": say("Size of the phone"),
        onchange: () => (handset.zoom = size.value ? Number(size.value) : null),
      },
      ...sizes.map(([value, text]) => h("option", { value, text })),
    );
    const picture = button("picture", say("Save a picture of the phone"), () => this.#picture());
    this.element = h("div", { class: "phone-tools" }, size, picture, this.#film);
  }

  async #picture() {
    const name = `${fileName()}.png`;
    try {
      await run(`snapshot ${name}`);
      save(`api/picture?file=${name}`, name);
    } catch (error) {
      toast(error.message, "problem");
    }
  }

  async #saveFilm() {
    this.#film.disabled = true;
    try {
      const { filmOf } = await import("../film/film.js");
      const film = await filmOf(this.#recent);
      if (film === null) return toast(say("The phone has shown nothing yet."));
      const address = URL.createObjectURL(film);
      save(address, `${fileName()}.apng`);
      setTimeout(() => URL.revokeObjectURL(address), savedWithin);
    } catch (error) {
      toast(error.message, "problem");
    } finally {
      this.#film.disabled = false;
    }
  }
}
