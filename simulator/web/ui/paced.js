// For what a phone in a hurry changes more often than anybody can read it.

// A function that has `act` called soon after, once for all calls since, and not more often than
// every so many milliseconds.
export function paced(every, act) {
  let last = -Infinity;
  let waits = false;
  const now = () => {
    waits = false;
    last = performance.now();
    act();
  };
  return () => {
    if (waits) return;
    waits = true;
    setTimeout(now, Math.max(0, last + every - performance.now()));
  };
}
