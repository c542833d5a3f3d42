// Masks, as the browser can have them: what is transparent in the mask's layer is cut away.

// From the mask's coordinates into those of the element, whose box begins at its bounds' origin.
function map([a, b, c, d, tx, ty], [left, top]) {
  return (x, y) => [a * x + c * y + tx - left, b * x + d * y + ty - top];
}

function frame({ bounds: [x, y, width, height], radius = 0 }, to, [, , wide, high]) {
  const [left, top] = to(x, y);
  const [right, bottom] = to(x + width, y + height);
  return `inset(${top}px ${wide - right}px ${high - bottom}px ${left}px round ${radius}px)`;
}

// Every pair of numbers of the path is a point.
function path(data, to) {
  const mapped = data.replace(/(-?[\d.]+(?:e-?\d+)?) (-?[\d.]+(?:e-?\d+)?)/g, (_, x, y) =>
    to(Number(x), Number(y)).join(" "),
  );
  return `path("${mapped}")`;
}

function gradient({ stops, start, end }) {
  const angle = Math.atan2(end[0] - start[0], start[1] - end[1]);
  const colors = stops.map(({ at, color }) => `${color} ${at * 100}%`);
  return `linear-gradient(${angle}rad, ${colors.join(", ")})`;
}

// `mask` is the mask's node, or nothing.
export function maskStyle(style, mask, bounds) {
  const to = mask && map(mask.transform, bounds);
  const kind = mask?.content?.type;
  style.maskImage = kind === "gradient" ? gradient(mask.content) : "";
  if (!mask || kind === "gradient") style.clipPath = "";
  else style.clipPath = kind === "shape" ? path(mask.content.path, to) : frame(mask, to, bounds);
}
