// What the server has told of the phone. Parts of the page listen to the event of the part's name;
// its detail is what came: whole, if `event.whole`.

// What the server tells of, each by an event of that name; a snapshot has them all.
export const parts = [
  "clock",
  "life",
  "phone",
  "player",
  "timer",
  "setup",
  "settings",
  "audio",
  "script",
  "pictures",
  "journal",
  "scene",
];

const keptEntries = 20_000;

export class PhoneState extends EventTarget {
  epoch = null;
  clock = { uptime: 0, wall: 0, speed: 1, paused: true };
  clockAt = performance.now();
  life = { state: "running", doing: null, safeMode: false, report: null };
  phone = {
    host: "off",
    screenOn: true,
    locked: false,
    orientation: "portrait",
    brightness: 0.5,
    peers: 0,
    due: false,
  };
  player = null;
  timer = { mode: null, endsAt: null, songsLeft: null, fades: false, atEnd: [] };
  setup = { lines: [] };
  settings = {};
  audio = { page: null };
  script = null;
  pictures = [];
  journal = [];

  #tell(name, detail, whole) {
    const event = new CustomEvent(name, { detail });
    event.whole = whole;
    this.dispatchEvent(event);
  }

  on(name, listener) {
    this.addEventListener(name, listener);
  }

  take(name, data, whole = false) {
    if (name === "clock") this.clockAt = performance.now();
    if (name === "journal") this.#takeJournal(data, whole);
    else if (name === "settings") this.settings = whole ? data : { ...this.settings, ...data };
    else if (name !== "scene") this[name] = data;
    this.#tell(name, name === "journal" && !whole ? data.entries : data, whole);
  }

  // A page that stays open for many nights keeps the latest entries only; the server has them all.
  #takeJournal(data, whole) {
    if (whole) this.journal = data;
    else this.journal.push(...data.entries);
    if (this.journal.length > keptEntries)
      this.journal.splice(0, this.journal.length - keptEntries / 2);
  }

  takeSnapshot(snapshot) {
    const fresh = this.epoch !== snapshot.epoch;
    this.epoch = snapshot.epoch;
    for (const name of parts) this.take(name, snapshot[name], true);
    this.#tell("snapshot", snapshot, fresh);
  }

  // Nobody says how it goes on: until somebody does, nothing does.
  standStill() {
    if (this.clock.paused) return;
    this.take("clock", {
      ...this.clock,
      uptime: this.uptime(),
      wall: this.wall(),
      paused: true,
    });
  }

  // Seconds since the phone's start, now.
  uptime() {
    const { uptime, speed, paused } = this.clock;
    return paused ? uptime : uptime + ((performance.now() - this.clockAt) / 1000) * speed;
  }

  wall() {
    return this.clock.wall + this.uptime() - this.clock.uptime;
  }

  // Seconds into the track; null without one.
  position() {
    const { player } = this;
    if (!player || player.position === null || player.position === undefined) return null;
    const moved = player.playing ? Math.max(0, this.uptime() - player.at) : 0;
    return player.length
      ? Math.min(player.position + moved, player.length)
      : player.position + moved;
  }
}
