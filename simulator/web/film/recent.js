// What the phone's screen has shown in the last half minute.

const kept = 30_000; // milliseconds

function apply(scene, { root, nodes, gone }) {
  if (root !== undefined) scene.root = root;
  for (const [id, node] of Object.entries(nodes ?? {})) scene.nodes.set(id, node);
  for (const id of gone ?? []) scene.nodes.delete(id);
}

const copyOf = ({ root, nodes }) => ({ root, nodes: new Map(nodes) });
const empty = () => ({ root: null, nodes: new Map() });

export class Recent {
  #first = empty(); // as it was before the changes
  #changes = []; // {at, change, whole}, the oldest first

  constructor(state) {
    state.on("scene", ({ detail, whole }) => this.#add(detail ?? { nodes: {} }, whole));
  }

  #add(change, whole) {
    const at = performance.now();
    this.#changes.push({ at, change, whole });
    const old = this.#changes.findIndex((each) => each.at > at - kept);
    for (const each of this.#changes.splice(0, old)) this.#first = this.#after(this.#first, each);
  }

  #after(scene, { change, whole }) {
    const next = whole ? empty() : scene;
    apply(next, change);
    return next;
  }

  // {scene, lasts: milliseconds}, not more often than every so many milliseconds.
  frames(every) {
    const now = performance.now();
    const frames = [];
    let scene = copyOf(this.#first);
    let shownAt = Math.max(now - kept, this.#changes[0]?.at ?? now);
    for (const [index, each] of this.#changes.entries()) {
      scene = this.#after(scene, each);
      const next = this.#changes[index + 1]?.at ?? now;
      if (next - shownAt < every && index + 1 < this.#changes.length) continue;
      frames.push({ scene: copyOf(scene), lasts: Math.max(next - shownAt, every) });
      shownAt = next;
    }
    return frames;
  }
}
