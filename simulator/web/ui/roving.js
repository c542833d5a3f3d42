// A list that is one stop for the tabulator: arrow keys, Home and End go among what can be pressed
// in it.

const moves = {
  ArrowDown: (at) => at + 1,
  ArrowUp: (at) => at - 1,
  Home: () => 0,
  End: (_, last) => last,
};

export class Roving {
  #list;
  #selector;
  #current = null;

  constructor(list, selector) {
    this.#list = list;
    this.#selector = selector;
    list.addEventListener("keydown", (event) => this.#key(event));
    list.addEventListener("focusin", ({ target }) => {
      if (target.matches(selector)) this.#stopAt(target);
    });
    new MutationObserver(() => this.#settle()).observe(list, { childList: true, subtree: true });
    this.#settle();
  }

  get #all() {
    return [...this.#list.querySelectorAll(this.#selector)];
  }

  #stopAt(element) {
    if (this.#current) this.#current.tabIndex = -1;
    this.#current = element;
    element.tabIndex = 0;
  }

  // One begins at what is chosen, else at what came last.
  #settle() {
    const isKept = this.#current?.isConnected && this.#current === document.activeElement;
    for (const element of this.#list.querySelectorAll(`${this.#selector}:not([tabindex])`))
      element.tabIndex = -1;
    const chosen = this.#list.querySelector('[aria-current="true"]') ?? this.#all.at(-1);
    if (chosen && !isKept) this.#stopAt(chosen);
  }

  #key(event) {
    const move = moves[event.key];
    if (!move || !event.target.matches(this.#selector)) return;
    const seen = this.#all.filter((element) => element.checkVisibility());
    const next = seen[move(seen.indexOf(event.target), seen.length - 1)];
    event.preventDefault();
    next?.focus();
  }
}
