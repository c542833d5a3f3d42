// The set-up of a phone: lines of the script language, and what a form says of them.

import { say } from "../ui/language.js";

export const words = (line) =>
  [...line.matchAll(/"((?:\\.|[^"\\])*)"|(\S+)/g)].map((found) =>
    found[1] === undefined
      ? found[2]
      : found[1].replace(/\\(.)/g, (_, char) => (char === "n" ? "\n" : char)),
  );

const quoted = (text) => `"${text.replaceAll("\\", "\\\\").replaceAll('"', '\\"')}"`;
const smallController =
  '<?xml version="1.0"?><plist version="1.0">' +
  "<dict><key>SmallMusicController</key><true/></dict></plist>";
const record = (name) => `file "/var/jb/var/lib/dpkg/info/${name}.list" ""`;

// Each with the lines that make it count as installed.
export const companions = {
  grupi: {
    label: say("Grupi, with its small music controller"),
    lines: [
      record("com.zentrik.grupi"),
      `file "/var/jb/var/mobile/Library/Preferences/com.zentrik.grupi.plist" ` +
        quoted(smallController),
    ],
  },
  sylph: { label: "Sylph", lines: [record("ch.vorhal.sylph")] },
};

export const standard = () => ({
  ios: "15.4",
  locale: "en_US",
  haptics: "2",
  missing: [],
  runner: false,
  shortcuts: [],
  bluetooth: [],
  companions: [],
  others: [],
});

function takeCompanion(model, line) {
  for (const [name, { lines }] of Object.entries(companions)) {
    if (!lines.includes(line)) continue;
    if (!model.companions.includes(name)) model.companions.push(name);
    return true;
  }
  return false;
}

const takers = {
  ios: (model, [version]) => (model.ios = version),
  locale: (model, [name]) => (model.locale = name),
  haptics: (model, [level]) => (model.haptics = level),
  missing: (model, rest) => model.missing.push(rest.join(" ")),
  shortcuts: (model, names) => Object.assign(model, { runner: true, shortcuts: names }),
  bluetooth: (model, names) =>
    (model.bluetooth = names.length === 1 && names[0] === "none" ? [] : names),
};

export function fromLines(lines) {
  const model = standard();
  for (const line of lines) {
    const [name, ...rest] = words(line);
    if (takers[name]) takers[name](model, rest);
    else if (!takeCompanion(model, line)) model.others.push(line);
  }
  return model;
}

export function toLines(model) {
  const usual = standard();
  return [
    ...["ios", "locale", "haptics"]
      .filter((name) => model[name] !== usual[name])
      .map((name) => `${name} ${model[name]}`),
    ...model.missing.map((name) => `missing ${name}`),
    ...(model.runner ? [["shortcuts", ...model.shortcuts.map(quoted)].join(" ")] : []),
    ...(model.bluetooth.length > 0
      ? [["bluetooth", ...model.bluetooth.map(quoted)].join(" ")]
      : []),
    ...model.companions.flatMap((name) => companions[name].lines),
    ...model.others,
  ];
}
