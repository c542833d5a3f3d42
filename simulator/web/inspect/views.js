// The views on the phone's screen, as the server tells them.
import { read } from "../server/requests.js";

// Every view after the one that it lies in, with its depth; by name.
function flattened(views) {
  const all = new Map();
  const add = (view, depth, parent) => {
    all.set(view.id, { ...view, depth, parent });
    for (const child of view.children) add(child, depth + 1, view.id);
  };
  for (const view of views) add(view, 0, null);
  return all;
}

// `place`, a point of the screen or nothing, asks whose a touch there would be.
export async function readViews(place) {
  const query = place ? `?x=${place.x.toFixed(1)}&y=${place.y.toFixed(1)}` : "";
  const { views, hit } = await read(`api/views${query}`);
  return { all: flattened(views), hit };
}

// The constraints that say something about the view, whoever holds them.
export const constraintsOn = (all, id) =>
  [...all.values()].flatMap(({ constraints }) =>
    constraints.filter(({ items }) => items.includes(id)).map(({ text }) => text),
  );

// The first from the view upwards that does something with touches: a control with actions.
export function controlAt(all, id) {
  for (let view = all.get(id); view; view = all.get(view.parent)) if (view.actions) return view;
  return null;
}
