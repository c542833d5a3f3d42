// What the page asks of the server. A refusal is an Error with the server's own words.

import { say } from "../ui/language.js";

const patience = 2500; // milliseconds, when only asking whether the server lets this page in

export class Refusal extends Error {
  constructor(status, body) {
    super(body.error ?? say("The server answered {status}.", { status }));
    this.status = status;
    this.body = body;
  }
}

async function answered(response) {
  const body = await response.json().catch(() => ({}));
  if (!response.ok) throw new Refusal(response.status, body);
  return body;
}

async function reach(path, options) {
  try {
    return await fetch(path, options);
  } catch {
    throw new Error(say("The simulator does not answer."));
  }
}

// Whether the server is there and does not let this page in: it has another secret than the page.
export async function isRefused() {
  const options = { method: "HEAD", cache: "no-store", signal: AbortSignal.timeout(patience) };
  return fetch("api/setup", options).then(
    ({ status }) => status === 401,
    () => false,
  );
}

export async function read(path) {
  return answered(await reach(path));
}

export async function post(path, body = {}) {
  const options = {
    method: "POST",
    headers: { "Content-Type": "application/json" },
    body: JSON.stringify(body),
  };
  return answered(await reach(path, options));
}

export async function forget(path) {
  return answered(await reach(path, { method: "DELETE" }));
}
