// This page's own name at the server: kept over reloads, but not shared by a duplicated tab, which
// the browser gives a copy of sessionStorage.

const key = "dozewell.page";

function fresh() {
  const id = `page-${crypto.randomUUID().slice(0, 13)}`;
  sessionStorage.setItem(key, id);
  return id;
}

// Holds the lock of that name until the page goes; false when another page has it.
function hold(id) {
  return new Promise((decided) => {
    navigator.locks.request(`dozewell.${id}`, { ifAvailable: true }, (lock) => {
      decided(lock !== null);
      return lock === null ? undefined : new Promise(() => {});
    });
  });
}

export async function pageId() {
  const kept = sessionStorage.getItem(key) ?? fresh();
  if (await hold(kept)) return kept;
  const other = fresh();
  await hold(other);
  return other;
}
