// One layer of the phone's screen. `element` carries its place, transparency and mask; its `face`
// carries the background, the content, the nodes below it, and is cut to the bounds.
import { h } from "../ui/dom.js";
import { drawContent } from "./content.js";
import { maskStyle } from "./mask.js";
import { describe } from "./accessibility.js";

const px = (number) => `${number}px`;

// From the element's own box, which begins at the bounds' origin, into the parent's coordinates.
function matrix([a, b, c, d, tx, ty], [x, y]) {
  return `matrix(${a}, ${b}, ${c}, ${d}, ${a * x + c * y + tx}, ${b * x + d * y + ty})`;
}

export class NodeElement {
  node = null;
  #face = h("div", { class: "face" });
  #children = h("div", { class: "children" });
  #content = null;
  #contentKey = "";
  #border = null;
  #before = null; // the element of what dissolves

  constructor(id) {
    this.element = h("div", { class: "node", "data-id": id }, this.#face);
    this.#face.append(this.#children);
  }

  show(node) {
    this.node = node;
    const { element } = this;
    const [x, y, width, height] = node.bounds;
    element.dataset.kind = node.kind;
    element.style.width = px(width);
    element.style.height = px(height);
    element.style.transform = matrix(node.transform, node.bounds);
    element.style.opacity = node.opacity ?? 1;
    this.#showFace(node);
    this.#showBorder(node);
    this.#showContent(node);
    this.#children.style.transform = x || y ? `translate(${-x}px, ${-y}px)` : "";
    describe(element, node);
  }

  #showFace(node) {
    const { style } = this.#face;
    style.borderRadius = px(node.radius ?? 0);
    style.overflow = node.clips ? "clip" : "visible";
    style.backgroundColor = node.background ?? "transparent";
    style.opacity = node.before ? 1 - node.beforeOpacity : 1;
  }

  #showBorder({ border, radius }) {
    if (!border) return this.#border?.remove();
    this.#border ??= h("div", { class: "border" });
    this.#border.style.borderRadius = px(radius ?? 0);
    this.#border.style.boxShadow = `inset 0 0 0 ${border.width}px ${border.color}`;
    this.#face.append(this.#border);
  }

  #showContent(node) {
    const key = JSON.stringify([node.content, node.bounds, node.radius]);
    if (key === this.#contentKey) return;
    this.#contentKey = key;
    const drawn = drawContent(node);
    this.#content?.remove();
    this.#content = drawn;
    if (drawn) this.#face.prepend(drawn);
  }

  // Puts the children in their order, moving only those that are not where they belong; `find`
  // gives the NodeElement of a name.
  adopt(node, find) {
    const elementOf = (name) => find(name)?.element;
    maskStyle(this.element.style, node.mask ? find(node.mask)?.node : null, node.bounds);
    let place = this.#children.firstChild;
    for (const id of node.children ?? []) {
      const child = elementOf(id);
      if (!child) continue;
      if (child === place) place = place.nextSibling;
      else this.#children.insertBefore(child, place);
    }
    this.#adoptBefore(node, elementOf);
    this.blurBehind(find);
  }

  // A child may blur those behind it, as far as it is seen itself. Not by a backdrop filter:
  // Chromium takes too little of what lies behind when that is scaled.
  blurBehind(find) {
    let blur = 0;
    for (const name of (this.node.children ?? []).toReversed()) {
      const child = find(name);
      if (!child) continue;
      child.element.style.filter = blur > 0 ? `blur(${blur}px)` : "";
      blur = Math.max(blur, (child.node.backdropBlur ?? 0) * (child.node.opacity ?? 1));
    }
  }

  #adoptBefore(node, elementOf) {
    const before = node.before ? elementOf(node.before) : null;
    if (this.#before && this.#before !== before) this.#before.remove();
    this.#before = before;
    if (!before) return;
    // Without its own place and transparency: it lies where this node is now.
    before.style.transform = "none";
    before.style.opacity = node.beforeOpacity;
    before.setAttribute("aria-hidden", "true");
    before.inert = true;
    if (before.parentNode !== this.element) this.element.append(before);
  }
}
