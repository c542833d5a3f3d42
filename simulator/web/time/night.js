// What the sleep timer will do, in words: when the music stops, and what else happens then. The
// server tells only of what would happen if the end were now.
import { duration } from "../ui/format.js";
import { locale, say, sayCount } from "../ui/language.js";

const list = new Intl.ListFormat(locale, { type: "unit" });

// "com.apple.Music" is known to its owner as Music.
const nameOf = (application) => application.split(".").at(-1);

const deeds = {
  airplane: () => say("airplane mode goes on"),
  focus: () => say("Do Not Disturb goes on"),
  "bluetooth-off": () => say("Bluetooth goes off"),
  disconnect: ({ names }) => say("{names} is disconnected", { names: list.format(names) }),
  shortcut: ({ name }) => say("the shortcut {name} runs", { name }),
  close: ({ application }) => say("{application} is closed", { application: nameOf(application) }),
};

// A song of the same title, as one that repeats, is none that the timer counts.
function endingWithAnotherTitle(timer, time) {
  if (timer.endsAt !== null)
    return say("The timer ends in {time}, the music only when another title begins.", { time });
  return sayCount(
    "This title plays again, which does not count: the music stops when another begins.",
    "This title plays again, which does not count: the music stops after {count} changes of title.",
    timer.songsLeft ?? 1,
  );
}

function ending(timer, state) {
  const songs = timer.songsLeft;
  const plays = timer.atEnd.some((each) => each.do === "pause");
  const time = duration(Math.ceil((timer.endsAt ?? 0) - state.uptime()));
  if (timer.endsWithSong && timer.sameTitleFollows) return endingWithAnotherTitle(timer, time);
  if (songs !== null)
    return sayCount(
      "The music stops at the end of this song.",
      "The music stops after {count} songs, this one included.",
      songs,
    );
  if (timer.endsAt === null) return say("The music stops at the end of this song.");
  if (timer.endsWithSong)
    return say("The music stops with the song that plays in {time}.", { time });
  if (!plays) return say("The timer ends in {time}. Nothing plays now.", { time });
  return timer.atEnd.some((each) => each.do === "fade")
    ? say("In {time} the music fades, then stops.", { time })
    : say("The music stops in {time}.", { time });
}

function rest(timer) {
  const fade = timer.atEnd.find((each) => each.do === "fade");
  const others = timer.atEnd.filter((each) => each.do in deeds);
  return [
    fade ? say("The fade takes {seconds} seconds.", { seconds: fade.seconds }) : null,
    others.length > 0
      ? say("Then {deeds}.", { deeds: list.format(others.map((each) => deeds[each.do](each))) })
      : null,
  ]
    .filter(Boolean)
    .join(" ");
}

// {text, more}; null when no timer runs and nothing fades.
export function night(state) {
  const { timer, player } = state;
  if (timer.fades) {
    const percent = Math.round((player?.volume ?? 0) * 100);
    return { text: say("The music fades: {percent} % are left.", { percent }), more: rest(timer) };
  }
  return timer.mode === null ? null : { text: ending(timer, state), more: rest(timer) };
}

// Where the button goes that leads to the end: {label, wish}, or {label, reason} when it cannot.
export function wayToEnd(state) {
  const { timer, player } = state;
  const endsWithSong = timer.mode !== null && timer.endsAt === null;
  const label = endsWithSong ? say("To the end of this song") : say("10 s before the end");
  if (timer.fades) return { label, reason: say("The music fades already.") };
  if (timer.mode === null)
    return { label, reason: say("No timer runs, so there is no end to go to.") };
  if (!endsWithSong) {
    const near = timer.endsAt - state.uptime() <= 10;
    return near
      ? { label, reason: say("The end is less than ten seconds away.") }
      : { label, wish: { beforeEnd: 10 } };
  }
  if (!player?.playing || !player.length)
    return { label, reason: say("No song plays that could come to its end.") };
  if (timer.sameTitleFollows)
    return { label, reason: say("This title plays again: its end stops nothing.") };
  const end = player.at + player.length - player.position;
  return { label, wish: { to: Math.max(end, state.uptime()) + 0.001 } };
}
