// A control for each type of setting: {element, input, show(value)}.
import { h } from "../ui/dom.js";

function toggle(id, setting, change) {
  const input = h("input", {
    type: "checkbox",
    role: "switch",
    id,
    onchange: () => change(input.checked),
  });
  return {
    input,
    element: h(
      "span",
      { class: "switch" },
      input,
      h("span", { class: "knob", "aria-hidden": "true" }),
    ),
    show: (value) => (input.checked = Boolean(value)),
  };
}

function choice(id, { choices }, change) {
  const input = h(
    "select",
    { id, onchange: () => change(choices[input.selectedIndex].value) },
    ...choices.map((each) => h("option", { value: String(each.value), text: each.label })),
  );
  return { input, element: input, show: (value) => (input.value = String(value)) };
}

function amount(id, setting, change) {
  const { min, max, step, unit } = setting;
  const input = h("input", {
    type: "number",
    id,
    min,
    max,
    step: step ?? (setting.type === "integer" ? 1 : "any"),
    inputmode: "decimal",
    onchange: () =>
      input.value === "" || !input.checkValidity()
        ? input.reportValidity()
        : change(Number(input.value)),
  });
  return {
    input,
    element: h(
      "span",
      { class: "amount" },
      input,
      unit ? h("span", { class: "unit", text: unit }) : null,
    ),
    show: (value) => {
      if (document.activeElement !== input) input.value = value ?? "";
    },
  };
}

function text(id, setting, change) {
  const input = h("input", {
    type: "text",
    id,
    maxlength: 200,
    autocomplete: "off",
    onchange: () => change(input.value),
  });
  return {
    input,
    element: input,
    show: (value) => {
      if (document.activeElement !== input) input.value = value ?? "";
    },
  };
}

export function makeField(setting, change) {
  const id = `setting-${setting.key}`;
  if (setting.choices?.length) return choice(id, setting, change);
  if (setting.type === "bool") return toggle(id, setting, change);
  if (setting.type === "text") return text(id, setting, change);
  return amount(id, setting, change);
}
