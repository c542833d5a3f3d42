// What a line of the journal means, for people; and the kind it is of, for colours and filters.

const number = (text) => Number(text);
const percent = (text) => `${Math.round(number(text) * 100)} %`;

// The first that matches counts. `say` gets the groups of the pattern.
const known = [
  [/^player play "(.*)"$/, "music", (title) => `The music player begins “${title}”.`],
  [/^player track "(.*)"$/, "music", (title) => `One track has ended, “${title}” begins.`],
  [/^player pause/, "music", () => "The music player stands still."],
  [/^player /, "music", () => "Something happened in the music player."],
  [/^user volume (.*)$/, "user", (level) => `You set the volume to ${percent(level)}.`],
  [/^user tap (.*)$/, "user", (what) => `You tapped ${what}.`],
  [/^user touch/, "user", () => "Your finger on the screen."],
  [/^user (.*)$/, "user", (what) => `Done by hand: ${what}.`],
  [/^-\[SBMediaController pause\]|^-\[SBMediaController pauseForEventSource/, "music", () => "The extension pauses the music."],
  [/^-\[SBMediaController setSuppressHUD:YES\]/, "volume", () => "The volume display is hidden for the fade."],
  [/^-\[SBMediaController setSuppressHUD:NO\]/, "volume", () => "The volume display may be shown again."],
  [/setVolume:([\d.eE-]+)/, "volume", (level) => `The volume is set to ${percent(level)}.`],
  [/^-\[PCSimpleTimer scheduleInRunLoop:\]/, "timer", () => "A timer of the system is set: it also wakes a sleeping phone."],
  [/^-\[PCSimpleTimer fire\]/, "timer", () => "The system's timer runs out."],
  [/^-\[PCSimpleTimer invalidate\]/, "timer", () => "The system's timer is called off."],
  [/^post "DozewellDidStartNotification"/, "timer", () => "The extension tells everyone: a sleep timer has started."],
  [/^post "DozewellDidStopNotification"/, "timer", () => "The extension tells everyone: the sleep timer is over."],
  [/^post "(.*)"/, "system", (name) => `A notification is posted: ${name}.`],
  [/setObject:(.*) forKey:".*persistedTimerDate"/, "storage", (date) => `The timer's end is written down (${date}), so that it survives a restart.`],
  [/setInteger:(\d+) forKey:".*persistedNbTracksLeft"/, "storage", (left) => `Songs left, ${left}, are written down: they survive a restart.`],
  [/removeObjectForKey:/, "storage", () => "What was written down is no longer needed, and removed."],
  [/^-\[NSUserDefaults /, "storage", () => "Something is written down for the next start."],
  [/^-\[HBPreferences |^preferences /, "storage", () => "A setting changes."],
  [/setAirplaneMode:(YES|NO)/, "radio", (on) => `Airplane mode goes ${on === "YES" ? "on" : "off"}.`],
  [/DND|BBSettingsGateway/, "radio", () => "Do Not Disturb changes."],
  [/Bluetooth/, "radio", () => "Something changes in Bluetooth."],
  [/RunwrightManager|shortcut/i, "actions", () => "A shortcut is run."],
  [/BKSTerminateApplication/, "actions", () => "An application is closed."],
  [/openURL/, "actions", () => "An address is opened, as in another application."],
  [/Haptic|Feedback|AudioServicesPlay|Impact/, "actions", () => "The phone can be felt: a short tap in the hand."],
  [/^log /, "system", () => "A line of the system's log."],
  [/^class |^hook |^method |^property /, "system", () => "The extension adds this to its host."],
  [/^host /, "system", () => "The home screen's process begins or ends."],
];

export const kinds = {
  user: "Your doing", music: "Music", volume: "Volume", timer: "Timer", actions: "Actions", radio: "Radios",
  storage: "Written down", system: "System",
};

export function explain(text) {
  for (const [pattern, kind, say] of known) {
    const found = pattern.exec(text);
    if (found) return { kind, meaning: say(...found.slice(1)) };
  }
  return { kind: "system", meaning: null };
}
