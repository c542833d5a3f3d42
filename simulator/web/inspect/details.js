// What is known of one view, and lines about it for a script.
import { h } from "../ui/dom.js";
import { icon } from "../ui/icons.js";
import { number, say } from "../ui/language.js";
import { toast } from "../ui/toast.js";
import { constraintsOn, controlAt } from "./views.js";

const rectangle = ([x, y, width, height]) => `{{${x}, ${y}}, {${width}, ${height}}}`;
const flag = (value) => (value ? "YES" : "NO");

// Names and values as scripts write them.
function propertiesOf(view, node) {
  const all = [
    ["frame", rectangle(view.frame)],
    ["bounds", rectangle(view.bounds)],
    ["alpha", `${view.alpha}`],
    ["hidden", flag(view.hidden)],
    ["userInteractionEnabled", flag(view.userInteractionEnabled)],
    ["tag", `${view.tag}`],
    [
      "translatesAutoresizingMaskIntoConstraints",
      flag(view.translatesAutoresizingMaskIntoConstraints),
    ],
  ];
  if (view.text !== undefined) all.push(["text", JSON.stringify(view.text)]);
  if (view.enabled !== undefined) all.push(["enabled", flag(view.enabled)]);
  if (view.selected !== undefined) all.push(["selected", flag(view.selected)]);
  if (node?.background) all.push(["backgroundColor", node.background]);
  if (node?.radius) all.push(["layer.cornerRadius", `${node.radius}`]);
  return all;
}

const named = (title, ...content) => [h("h3", { text: title }), ...content];

const list = (lines) => h("ul", {}, ...lines.map((text) => h("li", {}, h("code", { text }))));

function actionText({ events, target, action }) {
  const on = events.join(", ");
  return target
    ? say("{on}: [{target} {action}]", { on, target, action })
    : say("{on}: {action}, up the responder chain", { on, action });
}

function touches(all, view) {
  if (view.untouchable)
    return h("p", { text: say("Takes no touch: it {why}.", { why: view.untouchable }) });
  const control = controlAt(all, view.id);
  if (!control) return h("p", { text: say("No control handles its touches.") });
  const who = control === view ? say("It handles them itself.") : control.class;
  return [h("p", { text: who }), list(control.actions.map(actionText))];
}

async function copy(line) {
  try {
    await navigator.clipboard.writeText(line);
    toast(say("Copied: {line}", { line }));
  } catch (error) {
    toast(say("Not copied: {why}", { why: error.message }), "problem");
  }
}

const copied = (line) =>
  h(
    "li",
    {},
    h("code", { text: line }),
    h(
      "button",
      {
        class: "round",
        type: "button",
        "aria-label": say("Copy {line}", { line }),
        onclick: () => copy(line),
      },
      icon("copy"),
    ),
  );

// `node`: what is drawn of the view; may be missing.
export function detailsOf(all, view, node) {
  const constraints = constraintsOn(all, view.id);
  const { target } = view;
  return [
    h("h3", { class: "view-class", text: view.class }),
    view.controller ? h("p", { text: say("The view of {controller}", view) }) : null,
    h(
      "dl",
      {},
      ...propertiesOf(view, node).flatMap(([name, value]) => [
        h("dt", { text: name }),
        h("dd", { text: value }),
      ]),
    ),
    ...named(say("Touches"), ...[touches(all, view)].flat()),
    ...named(
      say("Constraints ({count})", { count: number(constraints.length) }),
      constraints.length > 0 ? list(constraints) : h("p", { text: say("None") }),
    ),
    ...named(
      say("For a script"),
      h(
        "ul",
        { class: "script-lines" },
        copied(`tree ${target}`),
        copied(`get ${target}.frame`),
        copied(`expect ${target}.alpha ${view.alpha}`),
      ),
    ),
  ].filter((each) => each !== null);
}
