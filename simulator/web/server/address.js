// The page's own address, and what lies below it at the server.

// Takes a parameter out of the address bar, where it would be seen, copied and asked for again by a
// reload; null without one.
export function takeParameter(name) {
  const url = new URL(location.href);
  const value = url.searchParams.get(name);
  if (value === null) return null;
  url.searchParams.delete(name);
  history.replaceState(history.state, "", url);
  return value;
}

// Everything lies below the page's place: "/api/setup" is the same as "api/setup".
export const below = (path) => new URL(path.replace(/^\/(?!\/)/, ""), document.baseURI);
