"""docs/settings.md: what every setting is, for a person."""

from amounts import amount
from pane import DOMAIN, FOLDER, NAME, titles

_HEAD = f"""# Settings

<!-- Written by the build: tweak/settings/pane/make.py docs docs/settings.md -->

On the phone, Settings has an entry **{NAME}**: these settings, in its words. On the simulator's page
they are in the tab Settings, and the simulated phone's own Settings application opens the same files
as the phone does, in `{FOLDER}`. A change takes effect
at once, except where a footer says otherwise, and the time left on the lock screen, which follows with
the next timer. Beside the name stands the key in the preferences
domain `{DOMAIN}`, which scripts use (`set volumeFadeOutTime 10`).

![The settings on the simulated phone, and the same in the page's tab](pictures/pane.png)
"""


def docs(wording, settings, english):
    return _HEAD + "".join(_group(group, settings, english) for group in wording["groups"])


def _group(group, settings, english):
    rows = "".join(_row(words, settings[words["key"]], english) for words in group["settings"])
    return (f"\n## {group['title']}\n\n| setting | key | type | as it comes | choices |\n"
            f"|---|---|---|---|---|\n{rows}\n{group['footer']}\n")


def _row(words, setting, english):
    cells = [words["label"], f"`{words['key']}`", setting.type,
             _default(words, setting, english), _choices(words, setting, english)]
    return "| " + " | ".join(cells) + " |\n"


def _default(words, setting, english):
    if setting.type == "bool":
        return "on" if setting.default else "off"
    if setting.default is None:
        return "none"
    named = words.get("names", {}).get(str(setting.default))
    return named or amount(setting.default, words["unit"], english)


def _choices(words, setting, english):
    if setting.type == "bool":
        return "on, off"
    if setting.type == "text":
        return "any text"
    listed = [title if "names" not in words or "unit" in words
              else f"{title} (`{value}`)"
              for title, value in zip(titles(words, setting, english),
                                      words.get("values") or words["names"])]
    return ", ".join(listed)
