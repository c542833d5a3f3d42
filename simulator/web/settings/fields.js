// A control for each type of setting: {element, input, show(value)}.
import { h } from "../ui/dom.js";
import { say } from "../ui/language.js";

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

// Why that number is none that can be set; empty when it can.
function problemOf({ validity, min, max }, unit) {
  if (validity.valid && !validity.valueMissing) return "";
  if (validity.rangeUnderflow || validity.rangeOverflow)
    return max === ""
      ? say("At least {min} {unit}.", { min, unit })
      : say("From {min} to {max} {unit}.", { min, max, unit });
  return validity.stepMismatch ? say("A whole number.") : say("A number.");
}

function amount(id, setting, change) {
  const { min, max, step, unit = "" } = setting;
  const problem = h("small", {
    class: "field-problem",
    id: `${id}-problem`,
    role: "alert",
  });
  const check = (input) => {
    problem.textContent = problemOf(input, unit).replace(" .", ".");
    input.ariaInvalid = String(problem.textContent !== "");
    return problem.textContent === "";
  };
  const input = h("input", {
    type: "number",
    id,
    min,
    max,
    step: step ?? (setting.type === "integer" ? 1 : "any"),
    required: true,
    inputmode: "decimal",
    "aria-describedby": problem.id,
    oninput: ({ target }) => check(target),
    onchange: ({ target }) => check(target) && change(Number(target.value)),
  });
  return {
    input,
    element: h(
      "span",
      { class: "amount" },
      input,
      unit ? h("span", { class: "unit", text: unit }) : null,
      problem,
    ),
    show: (value) => {
      if (document.activeElement === input) return;
      input.value = value ?? "";
      check(input);
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
