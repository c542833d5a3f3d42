// How large the phone is shown, and a picture of it.
import { run } from "../server/commands.js";
import { h } from "../ui/dom.js";
import { icon } from "../ui/icons.js";
import { say } from "../ui/language.js";
import { toast } from "../ui/toast.js";

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

export class PhoneTools {
  element;

  constructor(handset) {
    const size = h(
      "select",
      {
        id: "phone-zoom",
        "aria-label": say("Size of the phone"),
        onchange: () => (handset.zoom = size.value ? Number(size.value) : null),
      },
      ...sizes.map(([value, text]) => h("option", { value, text })),
    );
    const label = say("Save a picture of the phone");
    const picture = h(
      "button",
      {
        class: "round",
        id: "phone-picture",
        type: "button",
        title: label,
        "aria-label": label,
        onclick: () => this.#picture(),
      },
      icon("picture"),
    );
    this.element = h("div", { class: "phone-tools" }, size, picture);
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
}
