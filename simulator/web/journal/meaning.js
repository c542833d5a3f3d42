// What a line of the journal means, for people; and the kind it is of, for colours and filters.

const percent = (text) => `${Math.round(Number(text) * 100)} %`;

// The first that matches counts. `say` gets the groups of the pattern.
const known = [
  [/^player play (.*)$/, "music", (track) => `The music player begins ${track}.`],
  [/^player track (.*)$/, "music", (track) => `${track} begins.`],
  [/^player pause/, "music", () => "The music player stands still."],
  [/^player stop/, "music", () => "Nothing plays any more."],
  [
    /^player seek (.*)$/,
    "music",
    (seconds) => `The music goes on at second ${seconds} of the track.`,
  ],
  [/^player /, "music", () => "The music player changes."],
  [/^user volume ([\d.eE-]+)/, "user", (level) => `You set the volume to ${percent(level)}.`],
  [/^user (?:tap|touch) DozewellButton/, "user", () => "You touched the moon."],
  [/^user tap (.*)$/, "user", (what) => `You tapped ${what}.`],
  [/^user touch (.*)$/, "user", (what) => `Your finger came down on ${what}.`],
  [/^user (.*)$/, "user", (what) => `Done by hand: ${what}.`],
  [
    /^-\[SBMediaController (?:pause\]|pauseForEventSource)|^MRMediaRemoteSendCommand/,
    "music",
    () => "The extension pauses the music.",
  ],
  [/setSuppressHUD:YES/, "volume", () => "The volume display stays away during the fade."],
  [/setSuppressHUD:NO/, "volume", () => "The volume display may be shown again."],
  [
    /^-\[SBVolumeControl setVolume:([\d.eE-]+)/,
    "volume",
    (level) => `The extension sets the volume to ${percent(level)}.`,
  ],
  [/^HUD volume/, "volume", () => "The volume display is shown."],
  [
    /^-\[PCSimpleTimer scheduleInRunLoop:\]/,
    "timer",
    () => "A timer of the system is set: it wakes even a sleeping phone.",
  ],
  [/^-\[PCSimpleTimer fire\]/, "timer", () => "The system's timer runs out."],
  [/^-\[PCSimpleTimer invalidate\]/, "timer", () => "The system's timer is called off."],
  [
    /^post "DozewellDidStartNotification"/,
    "timer",
    () => "The extension tells everyone: a sleep timer has started.",
  ],
  [
    /^post "DozewellDidStopNotification"/,
    "timer",
    () => "The extension tells everyone: the sleep timer is over.",
  ],
  [
    /^-\[CSTimerViewController setEndDate:/,
    "timer",
    () => "The lock screen counts down to the timer's end.",
  ],
  [/^lock screen countdown ends/, "timer", () => "The lock screen counts down no longer."],
  [/^lock screen date (.*)$/, "system", (text) => `The lock screen shows ${text} below its clock.`],
  [/^post "kMRMediaRemote/, "system", () => "The system tells everyone: what plays has changed."],
  [
    /^post "HBPreferencesDidChangeNotification"/,
    "system",
    () => "The preferences library tells everyone: a setting has changed.",
  ],
  [/^post "(.*)"/, "system", (name) => `A notification is posted: ${name}.`],
  [
    /setObject:(.*) forKey:".*persistedTimerDate"/,
    "storage",
    (date) => `The timer's end is written down (${date}): it survives a restart.`,
  ],
  [
    /setInteger:(\d+) forKey:".*persistedNbTracksLeft"/,
    "storage",
    (left) => `The songs left, ${left}, are written down: they survive a restart.`,
  ],
  [
    /^-\[NSUserDefaults removeObjectForKey:/,
    "storage",
    () => "What was written down is no longer needed, and removed.",
  ],
  [/^-\[NSUserDefaults /, "storage", () => "Something is written down for the next start."],
  [
    /^-\[HBPreferences set\w+:(.*) forKey:"(.*)"/,
    "storage",
    (value, key) => `The setting ${key} becomes ${value}.`,
  ],
  [/^-\[HBPreferences /, "storage", () => "A setting goes back to its default."],
  [
    /setAirplaneMode:(YES|NO)/,
    "radio",
    (on) => `Airplane mode goes ${on === "YES" ? "on" : "off"}.`,
  ],
  [
    /^-\[RadiosPreferences synchronize\]/,
    "radio",
    () => "The radios' settings are written and read again.",
  ],
  [/DND|BBSettingsGateway/, "radio", () => "Do Not Disturb changes."],
  [/^-\[BluetoothManager /, "radio", () => "The extension changes Bluetooth."],
  [/runWorkflowWithName:(.*)\]/, "actions", (name) => `The shortcut ${name} is run.`],
  [/^BKSTerminateApplication/, "actions", () => "The application that was playing is closed."],
  [
    /^-\[UIApplication openURL:(.*)\]/,
    "actions",
    (url) => `${url} is opened, as another application would be.`,
  ],
  [
    /^haptic|^AudioServicesPlay/,
    "actions",
    () => "The phone can be felt: a short tap in the hand.",
  ],
  [
    /^-\[SpringBoard applicationDidFinishLaunching:\]/,
    "system",
    () => "The home screen has started.",
  ],
  [
    /^log "-\[<(\w+)/,
    "system",
    (name) => `The extension notes a call of ${name} in the system's log.`,
  ],
  [/^log /, "system", () => "A line of the system's log."],
  [/^stub /, "system", () => "The host was asked for something that the simulator only notes."],
];

export const kinds = {
  user: "Your doing",
  music: "Music",
  volume: "Volume",
  timer: "Timer",
  actions: "Actions",
  radio: "Radios",
  storage: "Written down",
  system: "System",
};

export function explain(text) {
  for (const [pattern, kind, say] of known) {
    const found = pattern.exec(text);
    if (found) return { kind, meaning: say(...found.slice(1)) };
  }
  return { kind: "system", meaning: null };
}
