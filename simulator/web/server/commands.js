// Lines of the phone script language, sent in the order in which they were given. What comes while
// a request is on its way goes with the next one; of fingers that move only the last place counts.
import { post } from "./requests.js";
import { toast } from "../ui/toast.js";

const waiting = []; // {lines, resolve, reject}
let busy = false;

const isMove = (entry) => entry?.lines.length === 1 && entry.lines[0].startsWith("touch moved ");

function enqueue(entry) {
  const last = waiting.at(-1);
  if (isMove(entry) && isMove(last)) waiting.pop().resolve({ ok: true });
  waiting.push(entry);
}

async function send(entry) {
  try {
    entry.resolve(await post("api/command", { lines: entry.lines }));
  } catch (error) {
    entry.reject(error);
  }
}

// Touches that gathered go together; others alone, so that each hears of its own mistake.
function nextEntry() {
  const first = waiting.shift();
  const touches = (entry) => entry?.lines.every((line) => line.startsWith("touch "));
  const joined = [first];
  while (touches(first) && touches(waiting[0])) joined.push(waiting.shift());
  return {
    lines: joined.flatMap((entry) => entry.lines),
    resolve: (answer) => joined.forEach((entry) => entry.resolve(answer)),
    reject: (error) => joined.forEach((entry) => entry.reject(error)),
  };
}

async function drain() {
  busy = true;
  while (waiting.length > 0) await send(nextEntry());
  busy = false;
}

export function run(...lines) {
  return new Promise((resolve, reject) => {
    enqueue({ lines, resolve, reject });
    if (!busy) drain();
  });
}

// The same, where a refusal needs no more than being told.
export async function perform(...lines) {
  try {
    return await run(...lines);
  } catch (error) {
    toast(error.message, "problem");
    return null;
  }
}

// A word of a script line.
export const quoted = (text) =>
  `"${text.replaceAll("\\", "\\\\").replaceAll('"', '\\"').replaceAll("\n", "\\n")}"`;
