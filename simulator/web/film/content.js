// What a node shows of its own, on a canvas: the counterpart of phone/content.js.

const pictures = new Map(); // file -> promise of its picture; null when there is none

export function pictureOf(file) {
  if (!pictures.has(file)) {
    const image = new Image();
    image.src = `api/image?file=${encodeURIComponent(file)}`;
    const loaded = image.decode().then(
      () => image,
      () => null,
    );
    pictures.set(file, loaded);
  }
  return pictures.get(file);
}

const family = (name) => getComputedStyle(document.documentElement).getPropertyValue(name);

function paintText(context, text, [x, y, width]) {
  const at = { left: x, center: x + width / 2, right: x + width }[text.alignment];
  const letters = family(text.display ? "--phone-display" : "--phone-text");
  context.font = `${text.weight} ${text.size}px ${letters}`;
  context.fillStyle = text.color;
  context.textAlign = text.alignment;
  context.direction = text.rightToLeft ? "rtl" : "ltr";
  text.lines.forEach((line, index) => {
    context.letterSpacing = `${line.spacing ?? 0}px`;
    context.fillText(line.text, at, y + text.baseline + index * text.lineHeight);
  });
}

function tinted(picture, tint) {
  const canvas = new OffscreenCanvas(picture.naturalWidth || 1, picture.naturalHeight || 1);
  const context = canvas.getContext("2d");
  context.drawImage(picture, 0, 0);
  context.globalCompositeOperation = "source-in";
  context.fillStyle = tint;
  context.fillRect(0, 0, canvas.width, canvas.height);
  return canvas;
}

async function paintImage(context, image) {
  const picture = await pictureOf(image.file);
  if (!picture) return;
  const [x, y, width, height] = image.frame;
  if (image.mirrored) {
    context.translate(2 * x + width, 0);
    context.scale(-1, 1);
  }
  context.drawImage(image.tint ? tinted(picture, image.tint) : picture, x, y, width, height);
}

function paintShape(context, { path, rule, fill, stroke }) {
  const way = new Path2D(path);
  if (fill) {
    context.fillStyle = fill;
    context.fill(way, rule ?? "nonzero");
  }
  if (!stroke) return;
  context.strokeStyle = stroke.color;
  context.lineWidth = stroke.width;
  context.lineCap = stroke.cap;
  context.lineJoin = stroke.join;
  context.miterLimit = stroke.miterLimit;
  context.setLineDash(stroke.dashes);
  context.lineDashOffset = stroke.dashPhase;
  context.stroke(way);
}

export function gradientOf(context, { stops, start, end }, [x, y, width, height]) {
  const point = ([across, down]) => [x + across * width, y + down * height];
  const made = context.createLinearGradient(...point(start), ...point(end));
  for (const { at, color } of stops) made.addColorStop(at, color);
  return made;
}

function paintGradient(context, gradient, bounds, radius) {
  context.fillStyle = gradientOf(context, gradient, bounds);
  context.beginPath();
  context.roundRect(...bounds, radius);
  context.fill();
}

const ways = {
  text: paintText,
  image: paintImage,
  shape: paintShape,
  gradient: paintGradient,
};

export async function paintContent(context, { content, bounds, radius = 0 }) {
  if (!content) return;
  context.save();
  await ways[content.type](context, content, bounds, radius);
  context.restore();
}
