// The screen: the scene's nodes as elements, patched by id. Nothing is drawn again that did not
// change; an element stays the same as long as its node lives, and so does the focus in it.
import { h } from "../ui/dom.js";
import { Artwork } from "./artwork.js";
import { NodeElement } from "./node.js";

export class Screen extends EventTarget {
  element = h("div", { class: "screen-content" });
  nodes = new Map(); // id -> NodeElement
  size = { width: 390, height: 844 }; // points, as the interface is turned
  #root = null;

  constructor(state) {
    super();
    new Artwork(state, this.element);
    state.on("scene", (event) =>
      event.whole ? this.#replace(event.detail) : this.#change(event.detail),
    );
  }

  #replace(scene) {
    const known = new Set(Object.keys(scene?.nodes ?? {}));
    for (const id of [...this.nodes.keys()]) if (!known.has(id)) this.#remove(id);
    this.#root = scene?.root ?? null;
    this.#change(scene ?? { nodes: {} });
  }

  #change(scene) {
    if (scene.root !== undefined) this.#root = scene.root;
    const changed = Object.entries(scene.nodes ?? {});
    for (const [id, node] of changed) this.#node(id).show(node);
    for (const [id, node] of changed) this.#node(id).adopt(node, (name) => this.nodes.get(name));
    for (const id of scene.gone ?? []) this.#remove(id);
    this.nodes.get(this.#root)?.blurBehind((name) => this.nodes.get(name));
    this.#showRoot();
    this.dispatchEvent(new Event("change"));
  }

  #node(id) {
    let node = this.nodes.get(id);
    if (node === undefined) this.nodes.set(id, (node = new NodeElement(id)));
    return node;
  }

  #remove(id) {
    this.nodes.get(id)?.element.remove();
    this.nodes.delete(id);
  }

  #showRoot() {
    const root = this.nodes.get(this.#root);
    if (!root) return this.element.replaceChildren();
    const [, , width, height] = root.node.bounds;
    this.size = { width, height };
    if (root.element.parentNode !== this.element) this.element.replaceChildren(root.element);
  }

  // Whether something of that class is seen.
  shows(kind) {
    for (const each of this.nodes.values()) if (each.node.kind === kind) return true;
    return false;
  }
}
