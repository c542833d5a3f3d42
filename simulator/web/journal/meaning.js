// What a line of the journal means, for people; the kind it is of, for colours and filters; and the
// piece of the night's story that it belongs to. Lines of no story are details of what came before.
import { number, say } from "../ui/language.js";

const part = (text) => Math.min(1, Math.max(0, Number(text)));
const percent = (text) => say("{percent} %", { percent: Math.round(part(text) * 100) });
const unquoted = (text) => text.replace(/^"(.*)"$/, "$1");
const named = (text) => (text === "nil" ? say("a track without a title") : `“${unquoted(text)}”`);
const amount = (text) => number(Number(text));

const handDone = {
  lock: () => say("You lock the phone"),
  unlock: () => say("You unlock the phone"),
  shake: () => say("You shake the phone"),
  "screen on": () => say("You light the screen"),
  "screen off": () => say("You switch the screen off"),
  "control-center open": () => say("You open Control Center"),
  "control-center close": () => say("You close Control Center"),
};

// [pattern, kind, meaning, story]. The first that matches counts; both get the groups of the
// pattern. A story is {key, text}: lines of the same key soon after each other are one piece, told
// by the last text, or by `often` where they are many. Soon after a piece of a key in `isPartOf` it
// is a detail of that.
const known = [
  [
    /^player (?:play|track) (.*)$/,
    "music",
    (track) => say("{track} begins.", { track: named(track) }),
    (track) => ({ key: "track", text: say("{track} plays", { track: named(track) }) }),
  ],
  [
    /^player pause/,
    "music",
    () => say("The music player stands still."),
    () => ({ key: "pause", text: say("The music pauses") }),
  ],
  [
    /^player stop/,
    "music",
    () => say("Nothing plays any more"),
    () => ({ key: "stop", text: say("Nothing plays any more") }),
  ],
  [
    /^player seek (.*)$/,
    "music",
    (seconds) => say("The music goes on at second {seconds} of the track.", { seconds }),
    (seconds) => ({
      key: "seek",
      text: say("The music goes on at second {seconds}", { seconds: amount(seconds) }),
    }),
  ],
  [
    /^player application (.*)$/,
    "music",
    (name) => say("Another application plays: {name}.", { name: unquoted(name) }),
    (name) => ({ key: "app", text: say("{name} plays now", { name: unquoted(name) }) }),
  ],
  [
    /^user volume ([\d.eE-]+)/,
    "user",
    (level) => say("You set the volume to {level}", { level: percent(level) }),
    (level) => ({
      key: "hand volume",
      text: say("You set the volume to {level}", { level: percent(level) }),
    }),
  ],
  [
    /^user (?:tap|touch) DozewellButton/,
    "user",
    () => say("You touched the moon."),
    () => ({ key: "moon", text: say("You touch the moon") }),
  ],
  [
    /^user tap \w+ (".*")$/,
    "user",
    (what) => say("You tapped {what}.", { what: named(what) }),
    (what) => ({ key: `tap ${what}`, text: say("You tap {what}", { what: named(what) }) }),
  ],
  [
    /^user press-alert (".*")$/,
    "user",
    (what) => say("You answered {what}.", { what: named(what) }),
    (what) => ({ key: `tap ${what}`, text: say("You answer {what}", { what: named(what) }) }),
  ],
  [
    /^user (?:tap|touch) (.*)$/,
    "user",
    (what) => say("Your finger came down on {what}.", { what }),
    () => ({ key: "touch", text: say("You touch the screen") }),
  ],
  [
    /^user (lock|unlock|shake|screen on|screen off|control-center open|control-center close)$/,
    "user",
    (what) => say("Done by hand: {what}.", { what }),
    (what) => ({ key: what, text: handDone[what]() }),
  ],
  [
    /^brightness (\d+) %$/,
    "user",
    (level) => say("The screen is {level} bright.", { level: percent(`${level / 100}`) }),
    (level) => ({
      key: "brightness",
      text: say("You set the brightness to {level}", { level: percent(`${level / 100}`) }),
    }),
  ],
  // The latter in Control Center and in Clock.
  [
    /^(?:user (.*)|(?=Wi-Fi |mobile data |rotation lock |torch |Clock timer st)(.*))$/,
    "user",
    (what, inside) => say("Done by hand: {what}.", { what: what ?? inside }),
    (what, inside) => ({
      key: `hand ${what ?? inside}`,
      text: say("By hand: {what}", { what: what ?? inside }),
    }),
  ],
  [
    /^-\[SBMediaController pause(?:\]|ForEventSource)/,
    "music",
    () => say("The extension pauses the music."),
    () => ({ key: "pause", text: say("The music pauses") }),
  ],
  [
    /^MRMediaRemoteSendCommand\(4/,
    "music",
    () => say("The extension skips to the next song."),
    () => ({ key: "skip", text: say("The song is skipped") }),
  ],
  [/^MRMediaRemoteSendCommand/, "music", () => say("What plays is given a command.")],
  [/setSuppressHUD:YES/, "volume", () => say("The volume display stays away.")],
  [/setSuppressHUD:NO/, "volume", () => say("The volume display may be shown again.")],
  [
    /^-\[SBVolumeControl setVolume:([\d.eE+-]+) forCategory:"Ringtone"/,
    "volume",
    (level) => say("The ringer's volume is set to {level}.", { level: percent(level) }),
  ],
  [
    /^-\[SB(?:VolumeControl|MediaController) setVolume:([\d.eE+-]+)/,
    "volume",
    (level) => say("The extension sets the volume to {level}.", { level: percent(level) }),
    (level) => ({
      key: "fade",
      text: say("The volume goes to {level}", { level: percent(level) }),
      often: say("The volume fades to {level}", { level: percent(level) }),
    }),
  ],
  [/^HUD volume/, "volume", () => say("The volume display is shown.")],
  [
    /^-\[PCSimpleTimer scheduleInRunLoop:\]/,
    "timer",
    () => say("A timer of the system is set: it wakes even a sleeping phone."),
    () => ({ key: "set", text: say("The sleep timer is set") }),
  ],
  [
    /^-\[PCSimpleTimer fire\]/,
    "timer",
    () => say("The system's timer runs out."),
    () => ({ key: "fire", text: say("The timer runs out") }),
  ],
  [
    /^-\[PCSimpleTimer invalidate\]/,
    "timer",
    () => say("The system's timer is called off."),
    () => ({ key: "over", text: say("The sleep timer is over") }),
  ],
  [
    /^post "DozewellDidStartNotification"/,
    "timer",
    () => say("The extension tells everyone: a sleep timer has started."),
    () => ({ key: "set", text: say("The sleep timer is set") }),
  ],
  [
    /^post "DozewellDidStopNotification"/,
    "timer",
    () => say("The extension tells everyone: the sleep timer is over."),
    () => ({
      key: "over",
      text: say("The sleep timer is over"),
      isPartOf: ["fire", "fade", "pause"],
    }),
  ],
  [
    /^-\[CSTimerViewController setEndDate:nil/,
    "timer",
    () => say("The lock screen is to count down no longer."),
  ],
  [
    /^-\[CSTimerViewController setEndDate:/,
    "timer",
    () => say("The lock screen counts down to the timer's end."),
  ],
  [/^lock screen countdown ends/, "timer", () => say("The lock screen counts down no longer.")],
  [
    /^lock screen date (.*)$/,
    "system",
    (text) => say("The lock screen shows {text} below its clock.", { text }),
  ],
  [
    /^Clock timer ends/,
    "timer",
    () => say("The Clock application's own timer is over."),
    () => ({ key: "clock", text: say("The Clock's own timer is over") }),
  ],
  [
    /^post "kMRMediaRemote/,
    "system",
    () => say("The system tells everyone: what plays has changed."),
  ],
  [
    /^post "HBPreferencesDidChangeNotification"/,
    "system",
    () => say("The preferences library tells everyone: a setting has changed."),
  ],
  [/^post "(.*)"/, "system", (name) => say("A notification is posted: {name}.", { name })],
  [
    /setObject:(.*) forKey:".*persistedTimerDate"/,
    "storage",
    (date) =>
      say("The timer's end is written down ({date}): it survives a restart.", { date }),
  ],
  [
    /set(?:Object|Integer):(-?\d+) forKey:".*persistedNbTracksLeft"/,
    "storage",
    (left) =>
      say("The songs left, {left}, are written down: they survive a restart.", { left }),
  ],
  [
    /^-\[NSUserDefaults removeObjectForKey:/,
    "storage",
    () => say("What was written down is no longer needed, and removed."),
  ],
  [
    /^-\[NSUserDefaults /,
    "storage",
    () => say("Something is written down for the next start."),
  ],
  [
    /^-\[HBPreferences set\w+:(.*) forKey:"(.*)"/,
    "storage",
    (value, key) => say("The setting {key} becomes {value}", { key, value }),
    (value, key) => ({
      key: "settings",
      text: say("The setting {key} becomes {value}", { key, value }),
      often: say("Settings are stored"),
    }),
  ],
  [
    /^-\[HBPreferences /,
    "storage",
    () => say("A setting goes back to its default"),
    () => ({ key: "settings", text: say("A setting goes back to its default") }),
  ],
  [
    /setAirplaneMode:(YES|NO)/,
    "radio",
    (on) => (on === "YES" ? say("Airplane mode goes on") : say("Airplane mode goes off")),
    (on) => ({
      key: "airplane",
      text: on === "YES" ? say("Airplane mode goes on") : say("Airplane mode goes off"),
    }),
  ],
  [
    /^-\[RadiosPreferences synchronize\]/,
    "radio",
    () => say("The radios' settings are written and read again."),
  ],
  [
    /^-\[(?:DNDModeAssertionService takeMode\w+:"|BBSettingsGateway setBehaviorOverrideStatus:1)/,
    "radio",
    () => say("Do Not Disturb goes on"),
    () => ({ key: "focus", text: say("Do Not Disturb goes on") }),
  ],
  [
    /^-\[(?:DNDModeAssertionService|BBSettingsGateway) /,
    "radio",
    () => say("Do Not Disturb changes"),
    () => ({ key: "focus", text: say("Do Not Disturb changes") }),
  ],
  [
    /^-\[BluetoothManager setEnabled:(YES|NO)/,
    "radio",
    (on) => (on === "YES" ? say("Bluetooth goes on") : say("Bluetooth goes off")),
    (on) => ({
      key: "bluetooth",
      text: on === "YES" ? say("Bluetooth goes on") : say("Bluetooth goes off"),
    }),
  ],
  [
    /^-\[BluetoothManager disconnectDevicePhysicalLink:(".*")\]/,
    "radio",
    (name) => say("The connection to {name} is ended.", { name: named(name) }),
    (name) => ({ key: `bt ${name}`, text: say("{name} is disconnected", { name: named(name) }) }),
  ],
  [/^-\[BluetoothManager /, "radio", () => say("The extension changes Bluetooth.")],
  [
    /runWorkflowWithName:(.*)\]/,
    "actions",
    (name) => say("The shortcut {name} is run.", { name: named(name) }),
    (name) => ({ key: "shortcut", text: say("The shortcut {name} runs", { name: named(name) }) }),
  ],
  [
    /^BKSTerminateApplication/,
    "actions",
    () => say("The application that was playing is closed."),
    () => ({ key: "close", text: say("The application that played is closed") }),
  ],
  [
    /^-\[UIApplication openURL:(.*)\]/,
    "actions",
    (url) => say("{url} is opened, as another application would be.", { url }),
    (url) => ({ key: "open", text: say("{url} is opened", { url }) }),
  ],
  [
    /^-\[UIPasteboard setString:(.*)\]/,
    "actions",
    (text) => say("{text} is copied.", { text }),
  ],
  [
    /^haptic|^AudioServicesPlay/,
    "actions",
    () => say("The phone can be felt: a short tap in the hand."),
  ],
  [
    /^-\[SpringBoard applicationDidFinishLaunching:\]/,
    "system",
    () => say("The home screen has started."),
    () => ({ key: "start", text: say("The home screen starts") }),
  ],
  [
    /^the host crashed: (.*)/,
    "system",
    (why) => say("The home screen has died: {why}", { why }),
    () => ({ key: "crash", text: say("The home screen crashes") }),
  ],
  [/^call /, "system", () => say("A call that somebody asked to have written down.")],
  [
    /^log "-\[<(\w+)/,
    "system",
    (name) => say("The extension notes a call of {name} in the system's log.", { name }),
  ],
  [/^log /, "system", () => say("A line of the system's log.")],
  [
    /^stub /,
    "system",
    () => say("The host was asked for something that the simulator only notes."),
  ],
];

export const kinds = {
  user: say("Your doing"),
  music: say("Music"),
  volume: say("Volume"),
  timer: say("Timer"),
  actions: say("Actions"),
  radio: say("Radios"),
  storage: say("Written down"),
  system: say("System"),
};

// {kind, meaning, story}; the last two may be null.
export function explain(text) {
  for (const [pattern, kind, meaning, story] of known) {
    const found = pattern.exec(text);
    if (!found) continue;
    const groups = found.slice(1);
    return { kind, meaning: meaning(...groups), story: story ? story(...groups) : null };
  }
  return { kind: "system", meaning: null, story: null };
}
