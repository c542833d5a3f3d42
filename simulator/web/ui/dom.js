// Makes elements. Styles are set through the CSSOM: the server's policy forbids them inline.

const SVG = "http://www.w3.org/2000/svg";

function apply(element, name, value) {
  if (value === undefined || value === null || value === false) return;
  if (name.startsWith("on")) element.addEventListener(name.slice(2), value);
  else if (name === "style")
    for (const [key, each] of Object.entries(value)) element.style.setProperty(key, each);
  else if (name === "class") element.setAttribute("class", value);
  else if (name === "text") element.textContent = value;
  else if (["value", "checked", "disabled", "hidden", "open"].includes(name)) element[name] = value;
  else element.setAttribute(name, value === true ? "" : value);
}

function fill(element, attributes, children) {
  for (const [name, value] of Object.entries(attributes ?? {})) apply(element, name, value);
  element.append(
    ...children.flat().filter((child) => child !== null && child !== undefined && child !== false),
  );
  return element;
}

// h("button", {class: "quiet", onclick: go}, "Go")
export function h(tag, attributes, ...children) {
  return fill(document.createElement(tag), attributes, children);
}

export function svg(tag, attributes, ...children) {
  return fill(document.createElementNS(SVG, tag), attributes, children);
}

// Text that a clock sets again and again: the same words put anew are laid out and painted anew.
export function setText(element, text) {
  if (element.textContent !== text) element.textContent = text;
}

export const byId = (id) => document.getElementById(id);

export const reducedMotion = () => matchMedia("(prefers-reduced-motion: reduce)").matches;
