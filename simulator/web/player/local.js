// Music from this page's own machine, played from memory: the files stay here. The phone is told
// titles and lengths, as of any playlist.

const endings = /\.(aac|flac|m4a|mp3|oga|ogg|opus|wav|weba)$/i;
const readWithin = 10_000; // milliseconds: what takes longer is nothing that can be played

export const isMusic = (file) => file.type.startsWith("audio/") || endings.test(file.name);

// "Corvane - Low Tide.mp3" names both.
function wordsOf(name) {
  const [first, ...rest] = name.replace(/\.[^.]*$/, "").split(" - ");
  if (rest.length === 0) return { artist: "", title: first };
  return { artist: first, title: rest.join(" - ") };
}

// Seconds; 0 when the browser cannot play it.
function lengthOf(url) {
  return new Promise((known) => {
    const audio = new Audio();
    audio.preload = "metadata";
    setTimeout(() => known(0), readWithin);
    audio.addEventListener("loadedmetadata", () => known(audio.duration));
    audio.addEventListener("error", () => known(0));
    audio.src = url;
  });
}

const fileOf = (entry) =>
  new Promise((known, failed) => {
    entry.file(known, failed);
  });
const someOf = (reader) =>
  new Promise((known, failed) => {
    reader.readEntries(known, failed);
  });

async function filesWithin(entry) {
  if (entry.isFile) return [await fileOf(entry)];
  const reader = entry.createReader();
  const all = [];
  for (let some = await someOf(reader); some.length > 0; some = await someOf(reader))
    all.push(...some);
  return (await Promise.all(all.map(filesWithin))).flat();
}

// All files in what was dropped, also in folders.
export async function filesOf(transfer) {
  const entries = [...transfer.items].map((item) => item.webkitGetAsEntry?.()).filter(Boolean);
  if (entries.length === 0) return [...transfer.files];
  return (await Promise.all(entries.map(filesWithin))).flat();
}

class LocalMusic extends EventTarget {
  tracks = []; // as the server lists its own, each with a url

  // Gives the names of those that cannot be played.
  async add(files) {
    const unread = [];
    for (const file of files) {
      const url = URL.createObjectURL(file);
      const length = await lengthOf(url);
      if (Number.isFinite(length) && length > 0)
        this.tracks.push({
          id: `local-${this.tracks.length + 1}`,
          ...wordsOf(file.name),
          length: Math.round(length * 1000) / 1000,
          cover: false,
          url,
        });
      else unread.push(file.name);
    }
    this.dispatchEvent(new Event("change"));
    return unread;
  }

  // Of the track that plays; null when it is none of these.
  idOf(player) {
    const isIt = ({ title, length }) =>
      title === player?.title && Math.abs(length - player.length) < 0.01;
    return this.tracks.find(isIt)?.id ?? null;
  }

  urlOf(id) {
    return this.tracks.find((track) => track.id === id)?.url ?? null;
  }
}

export const localMusic = new LocalMusic();
