// What a node shows of its own: lines of text, a picture, a path or a gradient.
import { h, svg } from "../ui/dom.js";

// In the node's own coordinates; what is drawn may be larger than the bounds, which may be empty.
function canvas([x, y], hidden, ...children) {
  return svg(
    "svg",
    {
      class: "content",
      width: 1,
      height: 1,
      viewBox: `${x} ${y} 1 1`,
      "aria-hidden": hidden ? "true" : null,
    },
    ...children,
  );
}

const anchors = { left: "start", center: "middle", right: "end" };
// Start and end follow the direction in which the text is read.
const opposite = { left: "right", center: "center", right: "left" };

function drawText(text, bounds) {
  const [x, , width] = bounds;
  const at = { left: x, center: x + width / 2, right: x + width }[text.alignment];
  const lines = text.lines.map((line, index) => {
    const drawn = svg(
      "text",
      { x: at, y: bounds[1] + text.baseline + index * text.lineHeight },
      line.text,
    );
    if (line.spacing) drawn.style.letterSpacing = `${line.spacing}px`;
    return drawn;
  });
  const drawn = canvas(bounds, false, ...lines);
  drawn.classList.add("text");
  const { style } = drawn;
  const anchor = anchors[text.alignment];
  style.fill = text.color;
  style.fontSize = `${text.size}px`;
  style.fontWeight = text.weight;
  style.textAnchor = text.rightToLeft ? anchors[opposite[text.alignment]] : anchor;
  style.direction = text.rightToLeft ? "rtl" : "ltr";
  style.fontFamily = text.display ? "var(--phone-display)" : "var(--phone-text)";
  if (text.monospacedDigits) style.fontVariantNumeric = "tabular-nums";
  return drawn;
}

const picture = (file) => `api/image?file=${encodeURIComponent(file)}`;

function drawImage(image, bounds) {
  const [x, y, width, height] = image.frame;
  const drawn = image.tint
    ? h("div", { class: "content tinted" })
    : h("img", { class: "content", src: picture(image.file), alt: "", draggable: "false" });
  const { style } = drawn;
  style.left = `${x - bounds[0]}px`;
  style.top = `${y - bounds[1]}px`;
  style.width = `${width}px`;
  style.height = `${height}px`;
  if (image.mirrored) style.transform = "scaleX(-1)";
  if (image.tint) {
    style.backgroundColor = image.tint;
    style.maskImage = `url("${picture(image.file)}")`;
  }
  return drawn;
}

function drawShape(shape, bounds) {
  const path = svg("path", { d: shape.path, "fill-rule": shape.rule });
  path.style.fill = shape.fill ?? "none";
  if (shape.stroke) {
    const { stroke } = shape;
    path.style.stroke = stroke.color;
    path.style.strokeWidth = stroke.width;
    path.style.strokeLinecap = stroke.cap;
    path.style.strokeLinejoin = stroke.join;
    path.style.strokeMiterlimit = stroke.miterLimit;
    if (stroke.dashes.length > 0) path.style.strokeDasharray = stroke.dashes.join(" ");
    path.style.strokeDashoffset = stroke.dashPhase;
  }
  return canvas(bounds, true, path);
}

let gradients = 0;

function drawGradient(gradient, bounds, radius) {
  const [x, y, width, height] = bounds;
  const id = `gradient-${++gradients}`;
  const [x1, y1] = gradient.start;
  const [x2, y2] = gradient.end;
  const stops = gradient.stops.map(({ at, color }) =>
    svg("stop", { offset: at, "stop-color": color }),
  );
  return canvas(
    bounds,
    true,
    svg("defs", {}, svg("linearGradient", { id, x1, y1, x2, y2 }, ...stops)),
    svg("rect", { x, y, width, height, rx: radius, fill: `url(#${id})` }),
  );
}

const ways = { text: drawText, image: drawImage, shape: drawShape, gradient: drawGradient };

// null for a node that shows nothing of its own.
export function drawContent({ content, bounds, radius = 0 }) {
  return content ? ways[content.type](content, bounds, radius) : null;
}
