// Short messages at the lower edge, read out by screen readers.
import { byId, h } from "./dom.js";

const shownFor = 6000; // milliseconds

export function toast(text, kind = "note") {
  const message = h("p", { class: `toast ${kind}`, text });
  const place = byId("toasts");
  place.append(message);
  while (place.children.length > 3) place.firstElementChild.remove();
  setTimeout(() => message.remove(), shownFor);
}

export function announce(text) {
  byId("announcer").textContent = text;
}
