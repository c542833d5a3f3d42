// How times are written for people.
import { locale } from "./language.js";

const two = (number) => String(number).padStart(2, "0");

// 65 -> "1:05", 3725 -> "1:02:05"
export function duration(seconds) {
  const whole = Math.max(0, Math.floor(seconds));
  const hours = Math.floor(whole / 3600);
  const minutes = Math.floor(whole / 60) % 60;
  return hours > 0
    ? `${hours}:${two(minutes)}:${two(whole % 60)}`
    : `${minutes}:${two(whole % 60)}`;
}

// As the journal prints it: "1215.100"
export const uptime = (seconds) => seconds.toFixed(3);

// The phone's clock counts in its own date; it is shown in UTC, as the phone has it.
const clockSeconds = (wall) => two(new Date(wall * 1000).getUTCSeconds());

const clocks = new Map(); // by region: one takes longer to make than to use

function clockOf(region) {
  const options = { hour: "numeric", minute: "2-digit", timeZone: "UTC", numberingSystem: "latn" };
  const tag = region?.replaceAll("_", "-") || "en-US";
  if (!clocks.has(tag)) clocks.set(tag, new Intl.DateTimeFormat(tag, options));
  return clocks.get(tag);
}

// As the phone's region has it, which may count to twelve: ["10:15", "07 PM"]
export function clockAsIn(region, wall) {
  const parts = clockOf(region)
    .formatToParts(new Date(wall * 1000))
    .reduce((all, { type, value }) => ({ ...all, [type]: value }), {});
  const seconds = [clockSeconds(wall), parts.dayPeriod].filter(Boolean).join(" ");
  return [`${parts.hour}:${parts.minute}`, seconds];
}

export function clockDate(wall) {
  return new Intl.DateTimeFormat(locale, {
    weekday: "long",
    day: "numeric",
    month: "long",
    timeZone: "UTC",
  }).format(new Date(wall * 1000));
}
