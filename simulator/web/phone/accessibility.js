// What a screen reader and the keyboard find on the phone's screen. The nodes say what they are;
// they are pressed where a finger would press them.

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

export function describe(element, { kind, role, label, value, enabled, selected }) {
  if (kind === alertKind) return element.setAttribute("role", "alertdialog");
  const known = role && roles[role];
  element.dataset.role = role ?? "";
  set(element, "role", known);
  const isText = role === "text";
  // The text that stands there.
  const face = element.firstElementChild;
  set(face, "aria-hidden", isText || role === "unspoken" ? "true" : null);
  set(element, "aria-label", isText && value ? `${label}, ${value}` : label);
  set(element, "tabindex", presses(role) || turns(role) ? 0 : null);
  set(element, "aria-valuetext", turns(role) ? value : null);
  set(element, "aria-description", presses(role) ? value : null);
  set(element, "aria-disabled", enabled === false ? "true" : null);
  set(element, "aria-pressed", role === "button" && selected ? "true" : null);
}
