// Keeps the focus in the phone when what had it goes away, as the moon's tile and Confirm do: it
// goes to what has the same name, else to what is nearest to where it was.

const focusable = ".node[tabindex]";
const isReachable = (element) => !element.closest("[inert]");

function centre(element) {
  const { left, top, width, height } = element.getBoundingClientRect();
  return { x: left + width / 2, y: top + height / 2 };
}

export class Focus {
  #glass;
  #left = null; // {label, x, y} of what has the focus, or had it when it went away

  constructor(glass, screen) {
    this.#glass = glass;
    glass.tabIndex = -1; // holds the focus while nothing in it can
    glass.addEventListener("focusin", (event) => this.#note(event.target));
    document.addEventListener("focusin", ({ target }) => {
      if (!glass.contains(target)) this.#left = null;
    });
    document.addEventListener("pointerdown", () => (this.#left = null), { capture: true });
    screen.addEventListener("change", () => this.#look());
  }

  #note(element) {
    if (element.matches(focusable)) this.#left = { label: element.ariaLabel, ...centre(element) };
  }

  #look() {
    const { activeElement } = document;
    if (this.#left === null) return;
    if (activeElement !== document.body && activeElement !== this.#glass) {
      this.#note(activeElement); // it may have moved
      return;
    }
    const found = this.#nearest();
    // What goes away may be followed by what comes a moment later.
    (found ?? this.#glass).focus({ preventScroll: true });
  }

  #nearest() {
    const { label, x, y } = this.#left;
    const distance = (element) => {
      const at = centre(element);
      return Math.hypot(at.x - x, at.y - y);
    };
    const all = [...this.#glass.querySelectorAll(focusable)].filter(isReachable);
    const named = all.filter((element) => element.ariaLabel === label);
    const among = named.length > 0 ? named : all;
    return among.sort((one, other) => distance(one) - distance(other))[0];
  }
}
