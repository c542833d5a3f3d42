// However often something changes, it is shown a few times a second.
import assert from "node:assert/strict";
import { setTimeout as after } from "node:timers/promises";
import { test } from "node:test";
import { paced } from "../../simulator/web/ui/paced.js";

test("many calls at once are one act, after all of them", async () => {
  let calls = 0;
  const acts = [];
  const act = paced(0, () => acts.push(calls));
  for (; calls < 100; ++calls) act();
  await after(1);
  assert.deepEqual(acts, [100]);
});

test("an act is not followed by the next one too soon", async () => {
  const every = 60;
  const acts = [];
  let done;
  const third = new Promise((resolve) => {
    done = resolve;
  });
  const act = paced(every, () => {
    acts.push(performance.now());
    if (acts.length === 3) return done();
    act();
    act();
  });
  act();
  await third;
  // Timers may be a little early.
  for (const index of [1, 2]) assert.ok(acts[index] - acts[index - 1] > every / 2, `${acts}`);
});
