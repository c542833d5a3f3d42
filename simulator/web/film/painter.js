// Paints a scene on a canvas. Layers that are half transparent are so one by one, and masks that
// are gradients cut nothing: a film is for seeing what happened.
import { paintContent } from "./content.js";

function box(context, [x, y, width, height], radius = 0) {
  context.beginPath();
  context.roundRect(x, y, width, height, Math.min(radius, width / 2, height / 2));
}

// In the masked node's coordinates.
function cut(context, mask) {
  if (!mask || mask.content?.type === "gradient") return;
  const way = new Path2D();
  const shape = mask.content?.type === "shape" ? new Path2D(mask.content.path) : new Path2D();
  if (mask.content?.type !== "shape") shape.roundRect(...mask.bounds, mask.radius ?? 0);
  way.addPath(shape, new DOMMatrix(mask.transform));
  context.clip(way);
}

// What lies there already is seen blurred.
function blur(context, deviation) {
  const { canvas } = context;
  context.save();
  context.resetTransform();
  context.globalAlpha = 1;
  context.filter = `blur(${deviation}px)`;
  context.drawImage(canvas, 0, 0);
  context.restore();
}

class Painting {
  #context;
  #scene;

  constructor(context, scene) {
    this.#context = context;
    this.#scene = scene;
  }

  paint(root) {
    return this.#paint(root);
  }

  async #paintFace(node) {
    const context = this.#context;
    const scene = this.#scene;
    if (node.clips) {
      box(context, node.bounds, node.radius);
      context.clip();
    }
    if (node.background) {
      context.fillStyle = node.background;
      box(context, node.bounds, node.radius);
      context.fill();
    }
    await paintContent(context, node);
    for (const name of node.children ?? []) await this.#paint(scene.nodes.get(name));
    if (!node.border) return;
    context.strokeStyle = node.border.color;
    context.lineWidth = node.border.width;
    box(context, node.bounds, node.radius);
    context.stroke();
  }

  async #paint(node, inPlace = true) {
    if (!node) return;
    const context = this.#context;
    const scene = this.#scene;
    context.save();
    if (inPlace) context.transform(...node.transform);
    const alpha = context.globalAlpha * (inPlace ? (node.opacity ?? 1) : 1);
    if (node.backdropBlur) blur(context, node.backdropBlur * (node.opacity ?? 1));
    cut(context, scene.nodes.get(node.mask));
    const before = scene.nodes.get(node.before);
    context.globalAlpha = alpha * (before ? 1 - node.beforeOpacity : 1);
    context.save();
    await this.#paintFace(node);
    context.restore();
    if (before) {
      context.globalAlpha = alpha * node.beforeOpacity;
      await this.#paint(before, false);
    }
    context.restore();
  }
}

export async function paintScene(canvas, scene) {
  const context = canvas.getContext("2d");
  context.resetTransform();
  context.fillStyle = "#000";
  context.fillRect(0, 0, canvas.width, canvas.height);
  const root = scene.nodes.get(scene.root);
  if (!root) return;
  const [, , width, height] = root.bounds;
  const scale = Math.min(canvas.width / width, canvas.height / height);
  context.translate((canvas.width - width * scale) / 2, (canvas.height - height * scale) / 2);
  context.scale(scale, scale);
  await new Painting(context, scene).paint(root);
}
