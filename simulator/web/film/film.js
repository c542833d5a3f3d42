// The last half minute of the phone's screen as an animated picture, painted when it is asked for.
import { animated } from "./apng.js";
import { paintScene } from "./painter.js";

const every = 200; // milliseconds between two frames, at least

async function pngOf(canvas) {
  const blob = await canvas.convertToBlob({ type: "image/png" });
  return new Uint8Array(await blob.arrayBuffer());
}

// A Blob; null when nothing was shown. `recent`: a Recent.
export async function filmOf(recent) {
  const frames = recent.frames(every);
  const last = frames.at(-1)?.scene;
  const root = last?.nodes.get(last.root);
  if (!root) return null;
  const [, , width, height] = root.bounds;
  const canvas = new OffscreenCanvas(width, height);
  const painted = [];
  for (const { scene, lasts } of frames) {
    await paintScene(canvas, scene);
    painted.push({ png: await pngOf(canvas), lasts });
  }
  return animated(painted);
}
