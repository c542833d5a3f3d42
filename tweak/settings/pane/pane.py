"""The pane on the phone: a specifier plist, and a table of strings for each language.

The keys of the tables are the English texts, so that the pane can be read even where nothing is
localised. A loader that looks for the plist by its label finds it: both are called NAME."""

import plistlib

from amounts import amount
from texts import quoted

NAME = "Dozewell2"
DOMAIN = "com.corvane.dozewell2"
NOTIFICATION = f"{DOMAIN}/ReloadPrefs"  # what the preferences library listens for
FOLDER = f"/var/jb/Library/PreferenceLoader/Preferences/{NAME}"


def choices(words, setting):
    """[(value, its name or None)…] of a list. A value without a name is an amount."""
    names = words.get("names", {})
    values = words.get("values") or [int(value) for value in names]
    return [
        (float(value) if setting.type == "real" else value, names.get(str(value)))
        for value in values
    ]


def titles(words, setting, language):
    return [
        language.translate(name) if name else amount(value, words["unit"], language)
        for value, name in choices(words, setting)
    ]


def _cell(words, setting, english):
    if setting.type == "bool":
        return {"cell": "PSSwitchCell"}
    if setting.type == "text":
        return {"cell": "PSEditTextCell", "placeholder": words["placeholder"],
                "noAutoCorrect": True}
    return {
        "cell": "PSLinkListCell",
        "detail": "PSListItemsController",
        "validTitles": titles(words, setting, english),
        "validValues": [value for value, _ in choices(words, setting)],
    }


def _specifier(words, setting, english):
    specifier = {"label": words["label"], "key": words["key"], "defaults": DOMAIN,
                 "PostNotification": NOTIFICATION, **_cell(words, setting, english)}
    if setting.default is not None:
        specifier["default"] = setting.default
    return specifier


def specifiers(wording, settings, english):
    """What the plist holds."""
    items = []
    for group in wording["groups"]:
        items.append({"cell": "PSGroupCell", "label": group["title"],
                      "footerText": group["footer"]})
        items += [_specifier(words, settings[words["key"]], english)
                  for words in group["settings"]]
    entry = {
        "cell": "PSLinkCell",
        "label": NAME,
        "icon": f"{NAME}.png",
        # Some loaders show no entry whose bundle they cannot read, and ask for this one's.
        "bundlePath": FOLDER,
    }
    return {"entry": entry, "title": wording["title"], "items": items}


def table(wording, settings, english, language):
    """{English: that language's} of every text that the plist shows."""
    texts = {}

    def add(text):
        # The extension's name is a name.
        texts[text] = text if text == wording["title"] else language.translate(text)

    for group in wording["groups"]:
        add(group["title"])
        add(group["footer"])
        for words in group["settings"]:
            add(words["label"])
            if "placeholder" in words:
                add(words["placeholder"])
            setting = settings[words["key"]]
            if setting.type in ("integer", "real"):
                texts.update(zip(titles(words, setting, english),
                                 titles(words, setting, language)))
    return texts


def write_pane(folder, wording, settings, languages):
    """Into that folder; `languages` by their names."""
    english = languages["en"]
    folder.mkdir(parents=True, exist_ok=True)
    plist = plistlib.dumps(specifiers(wording, settings, english), sort_keys=False)
    (folder / f"{NAME}.plist").write_bytes(plist)
    for name, language in languages.items():
        texts = table(wording, settings, english, language)
        lines = [f"{quoted(key)} = {quoted(text)};\n" for key, text in texts.items()]
        (folder / f"{name}.lproj").mkdir(exist_ok=True)
        (folder / f"{name}.lproj/Localizable.strings").write_text("".join(lines), encoding="utf-8")
