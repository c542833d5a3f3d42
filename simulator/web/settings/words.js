// The server words the settings in English, as they stand in the phone's pane; these are the same
// texts in the page's language.
import { say, sayCount } from "../ui/language.js";

const words = {
  General: say("General"),
  Timer: say("Timer"),
  "Timer offers": say("Timer offers"),
  "Time and songs": say("Time and songs"),
  "Time only": say("Time only"),
  "Songs only": say("Songs only"),
  "Time offered first": say("Time offered first"),
  minutes: say("minutes"),
  "Time goes in steps of": say("Time goes in steps of"),
  "Songs offered first": say("Songs offered first"),
  songs: say("songs"),
  "On the screen": say("On the screen"),
  "Panel closes after": say("Panel closes after"),
  seconds: say("seconds"),
  "Moon in the small player": say("Moon in the small player"),
  "Time left on the lock screen": say("Time left on the lock screen"),
  "Shake to restart the timer": say("Shake to restart the timer"),
  "When the timer starts": say("When the timer starts"),
  "Set the volume": say("Set the volume"),
  Volume: say("Volume"),
  percent: say("percent"),
  "Turn on Do Not Disturb": say("Turn on Do Not Disturb"),
  "Turn on airplane mode": say("Turn on airplane mode"),
  "Run a shortcut": say("Run a shortcut"),
  "When the timer ends": say("When the timer ends"),
  "Fade the music out": say("Fade the music out"),
  "The fade takes": say("The fade takes"),
  "Let the song finish": say("Let the song finish"),
  "What happens then": say("What happens then"),
  "Close the app that plays": say("Close the app that plays"),
  Bluetooth: say("Bluetooth"),
  "Act when the timer ends": say("Act when the timer ends"),
  Action: say("Action"),
  "Disconnect every device": say("Disconnect every device"),
  "Disconnect one device": say("Disconnect one device"),
  "Turn Bluetooth off": say("Turn Bluetooth off"),
  Device: say("Device"),
};

// By the group that they explain.
const footers = {
  General: say(
    "Off, Dozewell does nothing. Respring after changing this: it takes effect when the " +
      "home screen starts again.",
  ),
  Timer: say("A time between two steps becomes the lower one, and never less than one step."),
  "On the screen": say(
    "Without the moon in Control Center’s small player it is in the large one only. A " +
      "shake, at times only picking the phone up, shows the whole time again, but the music " +
      "stops when it would have; songs are counted anew.",
  ),
  "When the timer starts": say(
    "The shortcut is the one called “Dozewell Start”. It runs only if the Runwright " +
      "library is installed.",
  ),
  "When the timer ends": say(
    "Only a timer by time fades. If the song may finish, the music pauses at its end, " +
      "without a fade.",
  ),
  "What happens then": say(
    "The shortcut is the one called “Dozewell End”. It runs only if the Runwright library " +
      "is installed.",
  ),
  Bluetooth: say(
    "Type the device’s name exactly as Bluetooth settings show it. An emptied field means " +
      "none; as long as nothing was ever typed, every device is disconnected.",
  ),
};

const inWords = (text) => words[text] ?? text;

// An amount is a choice by itself: "5 minutes".
const choiceInWords = (unit) => ({ value, label }) => ({
  value,
  label: unit === "minutes" ? sayCount("{count} minute", "{count} minutes", value) : inWords(label),
});

export function settingInWords(setting) {
  const { group, footer, label, unit, choices } = setting;
  return {
    ...setting,
    group: inWords(group),
    footer: footers[group] ?? footer,
    label: inWords(label),
    unit: unit && inWords(unit),
    choices: choices?.map(choiceInWords(unit)),
  };
}
