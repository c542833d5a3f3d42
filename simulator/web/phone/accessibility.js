// What a screen reader and the keyboard find on the phone's screen. The nodes say what they are;
// they are pressed where a finger would press them.
import { numberIn } from "./wheel.js";

const roles = {
  button: "button",
  group: "group",
  slider: "slider",
  picker: "spinbutton",
  text: "img", // read as one, by its label, in place of what stands in it
};

export const alertKind = "_UIAlertControllerView";

export const turns = (role) => role === "slider" || role === "picker";
export const presses = (role) => role === "button" || role === "group";

function set(element, name, value) {
  if (value === undefined || value === null) element.removeAttribute(name);
  else element.setAttribute(name, value);
}

// The number that a value tells, in any language's digits.
function describeAmount(element, role, value) {
  const amount = turns(role) ? numberIn(value?.replace(/[%٪\s]/g, "")) : NaN;
  set(element, "aria-valuenow", Number.isNaN(amount) ? null : amount);
  const isSlider = role === "slider";
  set(element, "aria-valuemin", isSlider ? 0 : null);
  set(element, "aria-valuemax", isSlider ? 100 : null);
}

export function describe(element, { kind, role, label, value, enabled, selected, row, rows }) {
  if (kind === alertKind) return element.setAttribute("role", "alertdialog");
  const known = role && roles[role];
  element.dataset.role = role ?? "";
  set(element, "role", known);
  const isText = role === "text";
  const isOne = isText || role === "unspoken" || turns(role);
  // The text that stands there, and a wheel's rows.
  const face = element.firstElementChild;
  set(face, "aria-hidden", isOne ? "true" : null);
  set(element, "aria-label", isText && value ? `${label}, ${value}` : label);
  set(element, "tabindex", presses(role) || turns(role) ? 0 : null);
  set(element, "aria-valuetext", turns(role) ? value : null);
  describeAmount(element, role, value);
  set(element, "data-row", row);
  set(element, "data-rows", rows);
  set(element, "aria-description", presses(role) ? value : null);
  set(element, "aria-disabled", enabled === false ? "true" : null);
  set(element, "aria-pressed", role === "button" && selected ? "true" : null);
}
